#pragma once

#include "app/SheetMonitor.h"
#include "sync/SyncRun.h"

/// Where a synchronisation shows how it goes.
[[nodiscard]] RunSheet syncSheet(QuillorentAppDelegate &delegate);

/// Shows what a synchronisation tells beside what every run does.
class SyncDisplay : public SyncEvents {
public:
    explicit SyncDisplay(QuillorentAppDelegate &delegate) : m_delegate(delegate) {}

    void begin(const QString &what); ///< "Synchronising…" and the like, on the sheet

    void listed(const QString &listFile) override;
    void sawFigures(const QString &text) override;
    void failed(const QString &text) override;
    void previewed(const std::shared_ptr<const Preview> &preview) override { m_preview = preview; }

    /// What the last preview found; none before one has ended.
    [[nodiscard]] const std::shared_ptr<const Preview> &preview() const { return m_preview; }

private:
    QuillorentAppDelegate &m_delegate;
    std::shared_ptr<const Preview> m_preview;
};
