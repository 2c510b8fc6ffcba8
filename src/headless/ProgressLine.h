#pragma once

#include <QString>

class QuillorentAppDelegate;

/// How far a run is, on standard error: one line that is written over on a terminal, else a line at each
/// change.
class ProgressLine {
public:
    /// Shows where standard error is a terminal, or `always`.
    explicit ProgressLine(bool always);
    ~ProgressLine();
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;

    void show(const QuillorentAppDelegate &delegate);

private:
    const bool m_onTerminal;
    const bool m_shows;
    QString m_last;
};
