#pragma once

#include "runs/RunItem.h"
#include "runs/RunRecord.h"
#include "tools/ToolRun.h"

#include <QHash>
#include <QString>

class Run;

/// One item of a run on its way through its stages, each the run of a tool. Steps are skipped once the run is
/// cancelled or a stage has failed. Lives on a worker's thread.
class ItemPipeline {
protected:
    /// `index` is the item's place in the run's record; `known` are files that earlier runs left.
    ItemPipeline(Run &run, qsizetype index, const QString &item, const QList<LeftFile> &known);
    ~ItemPipeline() = default;
    ItemPipeline(const ItemPipeline &) = delete;
    ItemPipeline &operator=(const ItemPipeline &) = delete;

    [[nodiscard]] bool isCancelled() const;
    [[nodiscard]] bool goesOn() const { return !isCancelled() && m_succeeded; }

    /// What is done with the item from now on, and what that is going to be like.
    void setStage(const QString &name, const StagePlan &plan) const;
    /// The item's part of the run's bytes.
    [[nodiscard]] double bytesToDo() const;
    /// Of a file; 0 where there is none.
    [[nodiscard]] static double bytesAt(const QString &path);

    /// The files of the run's own that will exist for a while; `clear` is the one that is not encrypted.
    void expect(const QStringList &between, const QString &clear, const QString &final = {});
    /// Notes which of them exist now, so that the next run knows them again: `product`, which a stage has
    /// just made, and what is still the file that was noted before.
    void noteBetween(const QString &product = {});

    /// Makes sure that nothing is under a name that the next stage writes to. What an earlier run left goes,
    /// anything else gets another name and stays. The result tells where something is still there; else it is
    /// silent, and the stage may run.
    [[nodiscard]] ToolResult makeWay(const QString &path);
    /// The same result where a file that a stage of this item made has been replaced by something else.
    [[nodiscard]] ToolResult checkInput(const QString &path) const;

    /// Removes a file that this item made, unless something else has come into its place.
    void removeOwn(const QString &path);

    /// Makes a folder of the run's own, planned by planPrivateFolder(), that the next run knows again. The
    /// result tells where that failed; else it is silent.
    [[nodiscard]] ToolResult openPrivateFolder(const QString &path);
    /// Removes it, with all that is in it, also of a run that failed or was cancelled. Where something stays,
    /// it is noted as left in clear.
    void closePrivateFolder();
    /// Notes that something which is in the way of the item is about to get another name, or did not.
    void noteKept(const Aside &kept);
    void noteNotKept();

    [[nodiscard]] ToolResult runStage(const QString &tool, const QStringList &arguments) const;

    /// The same, of a tool whose lines are wanted; see forEachLineOf().
    void runForLines(const QString &tool, const QStringList &arguments,
                     const std::function<void(const QString &)> &take) const;

    /// Takes what the tool said as the stage's outcome. `line`, the outcome and the item go into the log. A
    /// tool that says nothing lets the next stages run; where it ended with a status all the same, or
    /// `isMade` is false, the item counts as failed in the end. Says whether the stage really did its work.
    bool judge(const QString &line, const ToolResult &result, bool isMade, const QString &product);

    /// The item is done, of so many bytes. One whose stages a cancel skipped counts all the same.
    void succeed(quint64 bytes);
    /// Shows the log on the console, below `explanation`, and ends the run. `reason` is for its summary.
    void fail(const QString &explanation, const QString &reason);
    /// The last step; `isComplete`: no stage was skipped. The last item ends the run.
    void end(bool isComplete, const QStringList &archives);

    Run &m_run;
    const qsizetype m_index;
    const QString m_item;
    QString m_log;
    bool m_succeeded = true;
    QString m_distrust; ///< why it counts as failed although no tool said a word

private:
    [[nodiscard]] bool isKnown(const QString &path, const FileIdentity &identity) const;
    [[nodiscard]] QString moveAway(const QString &path);
    [[nodiscard]] ToolResult clear(const QString &path);
    void claim(const QString &path);

    const QList<LeftFile> m_known;
    QList<LeftFile> m_strays; ///< of runs that were killed, under other names now; a folder of this run's own
    QString m_privateFolder;
    QStringList m_between;
    QString m_clear;
    QHash<QString, FileIdentity> m_made; ///< by this item's stages, by path
};
