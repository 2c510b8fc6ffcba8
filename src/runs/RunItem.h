#pragma once

#include <QString>
#include <chrono>

/// What a stage is going to be like, as far as that can be told before it runs.
struct StagePlan {
    double share = 0; ///< of the time that its item takes; the shares of all its stages make 1
    double bytes = 0; ///< what its tool reads and writes in all; 0 where nobody can tell
};

/// One item of a run, and how far it is.
struct RunItem {
    enum class Phase { Waiting, Running, Done, Failed, LeftOut };

    QString path{};
    QString stage{};        ///< what is done with it at the moment; empty before and after
    double bytes = 0;       ///< of those that the run has to do
    bool isCounted = false; ///< it is one of the items of the run, and not a step before them
    Phase phase = Phase::Waiting;
    double shareBefore = 0; ///< of the stages that are over
    StagePlan plan{};       ///< of the stage
    int tool = 0;           ///< its process id; 0 before it runs, -1 once it has ended
    std::chrono::steady_clock::time_point began{};
    std::chrono::steady_clock::time_point stageBegan{};

    [[nodiscard]] bool isRunning() const { return phase == Phase::Running; }
};
