#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Leaves certain lines out of a text that comes in pieces.
class LineFilter {
public:
    /// `dropped`: these lines as a whole, without their ends.
    explicit LineFilter(std::vector<std::string> dropped) : m_dropped(std::move(dropped)) {}

    /// What can be handed on now that this piece has come; the beginning of a line waits for its end.
    [[nodiscard]] std::string pass(std::string_view piece);
    /// What is left at the end.
    [[nodiscard]] const std::string &rest() const { return m_begun; }

private:
    std::vector<std::string> m_dropped;
    std::string m_begun;
};
