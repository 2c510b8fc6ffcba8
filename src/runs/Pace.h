#pragma once

#include <chrono>
#include <deque>
#include <optional>

/// How fast something goes, and how long it is going to take, from how far it was at several moments. Says
/// nothing before it can know.
class Pace {
public:
    using Time = std::chrono::steady_clock::time_point;

    void note(Time now, double done); ///< `done` never falls

    /// None in the first seconds, and where nothing moves.
    [[nodiscard]] std::optional<double> perSecond() const;
    /// None until it went on steadily for some time.
    [[nodiscard]] std::optional<std::chrono::seconds> left(double toDo) const;

private:
    struct Moment {
        Time time;
        double done;
    };
    [[nodiscard]] static double between(const Moment &earlier, const Moment &later);

    std::optional<Time> m_began;
    std::deque<Moment> m_moments;
};
