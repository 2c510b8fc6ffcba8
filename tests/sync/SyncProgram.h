#pragma once

#include "TestProgram.h"
#include "Tree.h"

#include <gtest/gtest.h>

/// rsync takes two times within one second for the same.
inline constexpr TreeComparison sameSecond{.nanoseconds = false, .root = false};

/// The program with a profile that synchronises from "src" to "dst", folders below the test's own.
struct SyncProgram {
    TestProgram program;
    QuillorentAppDelegate &delegate = program.delegate();

    SyncProgram()
    {
        // List files stay, and so would lie about.
        qputenv("TMPDIR", program.folder().c_str());
        program.start();
        setDestination(program.path("dst"));
    }

    ~SyncProgram() { qunsetenv("TMPDIR"); }
    SyncProgram(const SyncProgram &) = delete;
    SyncProgram &operator=(const SyncProgram &) = delete;

    void addEntries(const std::vector<std::string> &names) const
    {
        for (const std::string &name : names)
            delegate.addSyncEntries({program.path("src/" + name)});
    }

    void setDestination(const QString &path) const
    {
        delegate.openPanel = [path](const outlets::OpenPanel &) { return QStringList{path}; };
        delegate.syncButtoDestAction();
    }

    void setSwitches(bool checksum, bool deleteExtra, bool removeSources) const
    {
        delegate.syncSelector01.selectIndex(checksum ? 1 : 0);
        delegate.syncSelector01Action();
        delegate.checkBoxSync1.setOn(deleteExtra);
        delegate.checkBoxSync1Action();
        delegate.checkBoxSync2.setOn(removeSources);
        delegate.checkBoxSync2Action();
    }

    /// One of the two arguments that the settings hold.
    void setArgument(const QString &key, const QString &argument) const
    {
        delegate.configPlist().dictionary(u"sync"_qs).setValue(key, argument);
    }

    /// Gives what is on the console.
    QString run()
    {
        delegate.buttonLaunch03();
        program.waitForEnd();
        return delegate.consoleTextView01.text();
    }

    QString preview()
    {
        delegate.previewButton01Action();
        program.waitForEnd();
        return delegate.consoleTextView01.text();
    }

    /// The paths that the last preview gives for the change.
    [[nodiscard]] QStringList previewed(const QString &change) const
    {
        const outlets::TableDataSource &rows = *delegate.previewTableView.dataSource();
        QStringList paths;
        for (int row = 0; row < rows.numberOfRows(); ++row)
            if (rows.objectValue(u"c10"_qs, row).toString().contains(change))
                paths.append(rows.objectValue(u"c30"_qs, row).toString());
        paths.sort();
        return paths;
    }

    /// Every file below the folder, by its path, with its content.
    [[nodiscard]] std::string files(const std::string &folder) const
    {
        namespace fs = std::filesystem;
        std::map<std::string, std::string> found;
        for (const auto &entry : fs::recursive_directory_iterator(program.folder() / folder))
            if (entry.is_regular_file())
                found[fs::relative(entry.path(), program.folder() / folder).string()] =
                    readFile(entry.path());
        std::string text;
        for (const auto &[name, content] : found)
            text.append(text.empty() ? "" : " ").append(name).append("=").append(content);
        return text;
    }
};
