#include "runs/Pace.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

constexpr auto apart = 200ms;  // of the moments that are kept
constexpr auto forPace = 3s;   // until a pace can be told
constexpr auto forLeft = 10s;  // until the end can be foreseen
constexpr auto memory = 30s;   // what was before says nothing about what comes,
constexpr auto longest = 600s; // but of a run that takes hours more counts
constexpr double steady = 1.7; // at most so much faster in one half than in the other

} // namespace

double Pace::between(const Moment &earlier, const Moment &later)
{
    const std::chrono::duration<double> seconds = later.time - earlier.time;
    return seconds.count() > 0 ? (later.done - earlier.done) / seconds.count() : 0;
}

void Pace::note(Time now, double done)
{
    if (!m_began) m_began = now;
    if (!m_moments.empty() && now - m_moments.back().time < apart) return;
    m_moments.push_back({now, done});
    const auto kept = std::clamp<Time::duration>((now - *m_began) / 4, memory, longest);
    while (now - m_moments.front().time > kept)
        m_moments.pop_front();
}

std::optional<double> Pace::perSecond() const
{
    if (m_moments.empty() || m_moments.back().time - m_moments.front().time < forPace) return std::nullopt;
    const double pace = between(m_moments.front(), m_moments.back());
    return pace > 0 ? std::optional(pace) : std::nullopt;
}

std::optional<std::chrono::seconds> Pace::left(double toDo) const
{
    const auto pace = perSecond();
    if (!pace || m_moments.back().time - *m_began < forLeft) return std::nullopt;
    const Moment &middle = m_moments[m_moments.size() / 2];
    const double first = between(m_moments.front(), middle);
    const double second = between(middle, m_moments.back());
    if (first > steady * second || second > steady * first) return std::nullopt;
    const std::chrono::duration<double> seconds((toDo - m_moments.back().done) / *pace);
    return std::chrono::duration_cast<std::chrono::seconds>(seconds);
}
