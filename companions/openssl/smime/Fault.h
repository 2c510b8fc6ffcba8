#pragma once

#include <string>
#include <string_view>

/// What is wrong with the file that is read, told by whichever layer comes upon it first.
class Fault {
public:
    /// `predicate` says it of the file, as in "is damaged". What was reported before stays. Returns false,
    /// so that whoever reports can fail in the same breath.
    bool report(std::string_view predicate)
    {
        if (m_predicate.empty()) m_predicate = predicate;
        return false;
    }
    bool reportCutShort() { return report("ends too early: it was cut short"); }
    bool reportRubbish() { return report("goes on after the end of the message"); }

    [[nodiscard]] bool isSet() const { return !m_predicate.empty(); }
    [[nodiscard]] const std::string &predicate() const { return m_predicate; }

private:
    std::string m_predicate;
};
