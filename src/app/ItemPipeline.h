#pragma once

#include "outlets/Progress.h"

#include <QString>

class QuillorentAppDelegate;
struct ToolResult;

/// One item of a run on its way through its stages, each the run of a tool. Steps are skipped once the run is
/// cancelled or a stage has failed. Lives on a worker's thread.
class ItemPipeline {
protected:
    explicit ItemPipeline(const QString &item);
    ~ItemPipeline() = default;
    ItemPipeline(const ItemPipeline &) = delete;
    ItemPipeline &operator=(const ItemPipeline &) = delete;

    [[nodiscard]] bool isCancelled() const;
    [[nodiscard]] bool goesOn() const { return !isCancelled() && m_succeeded; }
    void removeIfGoingOn(const QString &path) const; ///< a file or a link; errors are ignored

    /// Takes what the tool said as the stage's outcome. `line`, the outcome and the item go into the log.
    void judge(const QString &line, const ToolResult &result);

    /// Counts the item as done. One whose stages a cancel skipped counts all the same.
    void succeed(outlets::ProgressBar &bar);
    /// Shows the log on the console, below `explanation`, and ends the run. `reason` is for its summary.
    void fail(const QString &explanation, const QString &reason);
    /// The last step. The last item ends the run.
    void end();

    QuillorentAppDelegate &m_delegate;
    const QString m_item;
    QString m_log;
    bool m_succeeded = true;
};
