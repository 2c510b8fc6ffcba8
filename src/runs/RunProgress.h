#pragma once

#include "runs/Pace.h"
#include "runs/RunState.h"

/// How far a run is at a moment, finer than its counters tell.
struct RunFigures {
    struct Item {
        QString path;
        QString stage;
        RunItem::Phase phase;
        double done; ///< 0 to 1
    };

    std::vector<Item> items{};
    double bytesDone = 0; ///< what half an item's work is worth counts as half its bytes
    double bytesToDo = 0; ///< 0 before it is known
    std::optional<double> bytesPerSecond{};
    std::optional<std::chrono::seconds> left{};

    [[nodiscard]] double done() const { return bytesToDo > 0 ? bytesDone / bytesToDo : 0; }
};

/// Watches one run after the other, from one thread: what its tools have read tells how far they are. Looks
/// at no disk, so that it can't be kept waiting by one. Of a run nothing ever goes back.
class RunProgress {
public:
    explicit RunProgress(const RunState &run) : m_run(&run) {}

    /// To be called several times a second, from before the run knows how much there is to do.
    [[nodiscard]] RunFigures look(Pace::Time now = std::chrono::steady_clock::now());

private:
    struct Shown {
        QString path;
        bool isCounted = false;
        double done = 0;
    };
    [[nodiscard]] double neverLess(std::size_t index, const RunItem &item, double done);

    const RunState *m_run;
    std::vector<Shown> m_shown; ///< of each item
    double m_bytesDone = 0;
    Pace m_pace;
};
