#pragma once

#include "runs/RunItem.h"

#include <QString>
#include <QStringList>
#include <chrono>
#include <mutex>
#include <vector>

/// How far a run is, who works for it, and the flag that ends it. One lock guards all of it; any thread may
/// call.
class RunState {
public:
    using Item = RunItem;

    [[nodiscard]] double foldersToDo() const;             ///< entries counted for the run
    [[nodiscard]] double foldersDone() const;             ///< entries finished successfully
    [[nodiscard]] double sizeToDo() const;                ///< bytes counted for the run
    [[nodiscard]] double sizeDone() const;                ///< bytes of the entries finished successfully
    [[nodiscard]] QStringList threadsRunning() const;     ///< paths of the items that workers are busy with
    [[nodiscard]] std::vector<Item> itemsRunning() const; ///< the same, with what is being done
    [[nodiscard]] std::vector<Item> items() const;        ///< all, in their order, also waiting and ended

    /// Raised to end the run: by the user, by a worker that failed, by the last worker. Lowered when a run
    /// begins, and only then: a cancel is never lost.
    [[nodiscard]] bool cancelFlag() const;
    void setCancelFlag(bool raised);

    /// Raises the flag in the user's name: the tools that still run are to be ended, too.
    void cancelByUser();
    [[nodiscard]] bool isCancelledByUser() const;

    /// The same for good: no run that begins now or later lowers the flag.
    void cancelForQuitting();

    void setFoldersToDo(double count);
    void setFoldersDone(double count);
    void setSizeToDo(double bytes);
    void setSizeDone(double bytes);
    void setThreadsRunning(const QStringList &paths);

    /// The same under the spelling that older callers know.
    void SetFoldersToDo(double count) { setFoldersToDo(count); }
    void SetFoldersDone(double count) { setFoldersDone(count); }
    void SetSizeToDo(double bytes) { setSizeToDo(bytes); }
    void SetSizeDone(double bytes) { setSizeDone(bytes); }
    void SetThreadsRunning(const QStringList &paths) { setThreadsRunning(paths); }

    /// One entry more to do, of so many bytes.
    void addToDo(double bytes);

    /// An item that is to be worked on, with its part of the run's bytes.
    void planItem(const QString &path, double bytes);

    /// One entry of so many bytes is done; gives the bytes done by now. In one step, so that no worker's
    /// count is lost.
    double addDone(double bytes);

    void beginItem(const QString &path);
    void setStage(const QString &path, const QString &stage, const StagePlan &plan = {});
    void setTool(const QString &path, int processId); ///< of the stage; -1 when it has ended
    /// One of them, where the same path runs twice; one that was not begun, where none runs.
    void endItem(const QString &path, Item::Phase phase = Item::Phase::Done);

    /// The first failure of the run: which item, and why. Empty where none failed.
    [[nodiscard]] QString failure() const;
    void setFailure(const QString &path, const QString &reason); ///< dropped after another, or a cancel

    /// Since the last run began; stands still after it ended.
    [[nodiscard]] std::chrono::milliseconds elapsed() const;
    [[nodiscard]] bool isRunActive() const; ///< from the run's first step to its last
    /// Begins a run, with the flag lowered and nothing failed. False where one is active: there is one at a
    /// time.
    [[nodiscard]] bool tryBeginRun();
    void endRun();

private:
    mutable std::mutex m_mutex;
    double m_foldersToDo = 0;
    double m_foldersDone = 0;
    double m_sizeToDo = 0;
    double m_sizeDone = 0;
    // No QList: it asks without a barrier whether another thread still shares it, before it changes in place.
    std::vector<Item> m_items;
    bool m_cancelFlag = false;
    QString m_failure;
    bool m_cancelledByUser = false;
    bool m_quitting = false;
    bool m_runActive = false;
    std::chrono::steady_clock::time_point m_began;
    std::chrono::steady_clock::time_point m_ended;
};
