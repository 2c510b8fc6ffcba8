#pragma once

#include "runs/RunProgress.h"

#include <QString>

class QuillorentAppDelegate;

/// How far a run is, on standard error: one line that is written over on a terminal, else a line for each
/// step and each hundredth.
class ProgressLine {
public:
    /// Shows where standard error is a terminal, or `always`.
    ProgressLine(const QuillorentAppDelegate &delegate, bool always);
    ~ProgressLine();
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;

    void show(); ///< to be called often

private:
    const QuillorentAppDelegate &m_delegate;
    RunProgress m_progress;
    std::chrono::steady_clock::time_point m_looked{};
    const bool m_onTerminal;
    const bool m_shows;
    QString m_last;
};
