#pragma once

#include "OrderOf.h"
#include "TemporaryFolder.h"
#include "TestProgram.h"
#include "Tree.h"

#include "runs/RunMonitor.h"
#include "runs/RunState.h"
#include "sync/SyncRun.h"

#include <gtest/gtest.h>
#include <sstream>
#include <thread>

namespace fs = std::filesystem;

/// rsync takes two times within one second for the same.
inline constexpr TreeComparison sameSecond{.nanoseconds = false, .root = false};

/// Makes the files of a folder: "d/a=1 d/b=2" is two, with a letter each.
inline void fill(const fs::path &folder, const std::string &files)
{
    std::istringstream words(files);
    for (std::string word; words >> word;)
        writeFile(folder / word.substr(0, word.find('=')), word.substr(word.find('=') + 1));
}

/// The reverse of it, in the order of their names.
inline std::string filesIn(const fs::path &folder)
{
    std::string text;
    for (const auto &[path, entry] : snapshotTree(folder))
        if (entry.type == 'f') text += (text.empty() ? "" : " ") + path + "=" + readFile(folder / path);
    return text;
}

/// An order to synchronise from "src" to "dst" in a folder of its own, and what its runs tell.
struct SyncSample : private RunMonitor, private SyncEvents {
    TemporaryFolder folder;
    SyncOrder order = orderOf({}, path("src"), path("dst"));
    RunState state;
    QString console;
    QString summary;
    std::shared_ptr<const Preview> found; ///< by the last preview
    std::atomic<bool> sawGrowth = false;

    SyncSample()
    {
        qputenv("TMPDIR", folder.path().c_str()); // list files stay, and so would lie about
        qputenv("XDG_STATE_HOME", folder.path().c_str());
        fs::create_directories(folder / "quillorent/runs");
    }
    ~SyncSample() override
    {
        qunsetenv("TMPDIR");
        qunsetenv("XDG_STATE_HOME");
    }

    [[nodiscard]] QString path(const std::string &name) const { return toQString(folder / name); }
    void list(const std::vector<std::string> &names)
    {
        order.entries.clear();
        for (const std::string &name : names)
            order.entries.append(path("src/" + name));
    }

    /// Gives what is on the console at the end.
    std::string run() { return runAs(runSync); }
    std::string preview() { return runAs(runPreview); }

    /// The paths that the last preview gives for the change.
    [[nodiscard]] QStringList previewed(PreviewRow::Change change) const
    {
        QStringList paths;
        for (const PreviewRow &row : found->rows)
            if (row.change == change) paths.append(row.path);
        paths.sort();
        return paths;
    }

private:
    std::string runAs(void (*kind)(const SyncOrder &, RunState &, RunMonitor &, SyncEvents &))
    {
        console.clear();
        EXPECT_TRUE(state.tryBeginRun());
        const QString refusal = kind == runSync ? makeDestination(order) : QString();
        EXPECT_TRUE(refusal.isEmpty()) << qPrintable(refusal);
        kind(order, state, *this, *this);
        return console.toStdString();
    }

    void ended(const QString &text) override { summary = text; }
    void listed(const QString &) override {}
    void sawFigures(const QString &text) override
    {
        if (text.contains(u"more at the destination: ")) sawGrowth = true;
    }
    void failed(const QString &text) override { console = text; }
    void previewed(const std::shared_ptr<const Preview> &preview) override { found = preview; }
};
