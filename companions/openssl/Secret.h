#pragma once

#include <array>
#include <cstddef>
#include <string_view>

/// A password, held in one place only and wiped from there at the end.
class Secret {
public:
    /// The longest password, in bytes, that the tool takes from a file descriptor: it reads one line into a
    /// buffer of 1024 bytes and cuts off the rest of a longer one without a word.
    static constexpr std::size_t maximumSize = 1023;

    Secret() = default;
    ~Secret() { wipe(); }
    Secret(const Secret &) = delete;
    Secret &operator=(const Secret &) = delete;

    /// Takes a copy of `text`. False, and the secret is empty: it is longer than maximumSize.
    [[nodiscard]] bool assign(std::string_view text);
    [[nodiscard]] std::string_view text() const { return {m_bytes.data(), m_size}; }
    void wipe();

private:
    std::array<char, maximumSize> m_bytes{};
    std::size_t m_size = 0;
};
