#pragma once

#include "Command.h"
#include "TemporaryFolder.h"
#include "Tree.h"
#include "backup/BackupLook.h"
#include "backup/BackupRun.h"
#include "extract/ExtractLook.h"
#include "extract/ExtractRun.h"
#include "files/Names.h"
#include "runs/Pauses.h"
#include "runs/RunJournal.h"
#include "runs/RunMonitor.h"
#include "runs/RunState.h"

#include <QDir>
#include <gtest/gtest.h>
#include <mutex>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// Writes a shell script that stands in for a tool; gives its path.
inline QString writeScript(const std::filesystem::path &path, const std::string &body)
{
    writeFile(path, "#!/bin/sh\n" + body + "\n");
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    return QString::fromStdString(path.string());
}

/// Notes what a run tells, and how far it is.
class NotingMonitor : public RunMonitor {
public:
    void advanced(double) override
    {
        const std::lock_guard lock(mutex);
        most = std::max(most, state.threadsRunning().size());
    }
    void logged(const QString &text) override
    {
        const std::lock_guard lock(mutex);
        console += text;
    }
    void concluded(const RunRecord &ended) override { record = ended; }

    RunState state;
    QString console;
    RunRecord record;
    qsizetype most = 0; ///< workers at once
    std::mutex mutex;
};

/// The engines with the build's own tools, "archives" and "out" in a folder of the test's own, and no program
/// around them.
class EngineTest : public testing::Test {
protected:
    using Paths = std::vector<std::filesystem::path>;

    EngineTest()
    {
        umask(077);
        qputenv("XDG_STATE_HOME", (folder / "state").string().c_str());
        pauses() = {.beforeMeasuring = {}};
        std::filesystem::create_directories(archives);
        std::filesystem::create_directories(out);
    }

    [[nodiscard]] static QString text(const std::filesystem::path &path)
    {
        return QString::fromStdString(path.string());
    }

    /// Encrypted by "correct horse"; split into volumes of so many thousand bytes, or whole for 0.
    [[nodiscard]] BackupOrder backupOrder(const Paths &sources, int volume = 0) const
    {
        BackupOrder order{.profile = QStringLiteral("test"),
                          .destination = text(archives),
                          .archiver = realRar,
                          .encoder = realOpenSsl,
                          .archiveExtension = QStringLiteral(".rar"),
                          .methodExtension = QStringLiteral(".aes"),
                          .method = QStringLiteral("OpenSSL-AES"),
                          .cipher = QStringLiteral("aes-256-cbc"),
                          .password = Secret::fromText(QStringLiteral("correct horse")),
                          .keepDate = QStringLiteral("-tl"),
                          .split = volume ? QStringLiteral("-v%1").arg(volume) : QStringLiteral(""),
                          .volumeSize = QString::number(volume)};
        QStringList all;
        for (const auto &source : sources)
            all.append(text(source));
        for (const QString &source : all)
            order.items.append(backupItem(source, order.destination,
                                          quillorentLibrary::nameRepeated(source, all),
                                          QStringLiteral(".rar"), order.methodExtension));
        return order;
    }

    /// The ciphers of all are told by their names.
    [[nodiscard]] ExtractOrder extractOrder(const Paths &listed) const
    {
        ExtractOrder order{
            .folder = text(out),
            .archiver = realRar,
            .decoder = realOpenSsl,
            .methods = {{QStringLiteral(".aes"), QStringLiteral(".aes"), QStringLiteral("aes-256-cbc")},
                        {QStringLiteral(".bf"), QStringLiteral(".bf"), QStringLiteral("bf-cbc")},
                        {QStringLiteral(".3d"), QStringLiteral(".3d"), QStringLiteral("des-ede3-cbc")},
                        {QStringLiteral(".smime"), QStringLiteral(".smime"), QStringLiteral("smime")}},
            .choosesByName = true,
            .password = Secret::fromText(QStringLiteral("correct horse"))};
        for (const auto &path : listed) {
            const QString archive = text(path);
            order.shown.append(archive);
            const auto volume = volumeName(archive);
            if (volume && volume->isLater()) continue;
            const QString whole = withoutVolumePart(archive);
            const QString extension = methodOfArchive(whole, order.methods); // called like that above
            const QString command = commandOfArchive(whole, order.methods);
            order.items.append({archive, extractPaths(archive, order.folder, extension), command, command});
        }
        return order;
    }

    /// Looks, goes on in spite of concerns, and works to the end, unless there is an obstacle.
    void run(BackupOrder order)
    {
        FolderLock lock;
        if (begin(lookAtBackup(order, lock, [] { return true; })))
            runBackup(order, monitor->state, *monitor, std::move(lock));
    }
    void run(ExtractOrder order)
    {
        FolderLock lock;
        damaged.clear();
        if (begin(lookAtExtraction(order, lock)))
            runExtraction(order, monitor->state, *monitor, std::move(lock),
                          [&](const QString &archive, const QString &) { damaged = archive; });
    }
    void backUp(const Paths &sources, int volume = 0) { run(backupOrder(sources, volume)); }
    void extract(const Paths &listed) { run(extractOrder(listed)); }

    void expectSuccess() const
    {
        EXPECT_EQ(findings.obstacles.join(u'\n').toStdString() + monitor->console.toStdString(), "");
        EXPECT_EQ(monitor->record.outcome, Outcome::Succeeded) << summary();
        EXPECT_FALSE(monitor->state.isRunActive());
    }
    [[nodiscard]] std::string summary() const { return monitor->record.summary.toStdString(); }

    /// The names in a folder, sorted, one a line.
    [[nodiscard]] static std::string namesIn(const std::filesystem::path &in)
    {
        const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        return QDir(text(in)).entryList(all, QDir::Name).join(u'\n').toStdString();
    }
    /// A file in a folder of that name, to be backed up.
    [[nodiscard]] std::filesystem::path sample(const std::string &name,
                                               const std::string &content = "x") const
    {
        writeFile(folder / name / "file", content);
        return folder / name;
    }
    /// Where a source comes to be.
    [[nodiscard]] std::filesystem::path extracted(const std::filesystem::path &source) const
    {
        return out / source.relative_path();
    }

    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.path();
    const std::filesystem::path archives = folder / "archives";
    const std::filesystem::path out = folder / "out";
    const QString realRar = QStringLiteral(QUILLORENT_LIBEXEC "/rar");
    const QString realOpenSsl = QStringLiteral(QUILLORENT_LIBEXEC "/openssl");
    Findings findings;                                                          ///< of the last look
    std::unique_ptr<NotingMonitor> monitor = std::make_unique<NotingMonitor>(); ///< of the last run
    QString damaged; ///< the archive that failed its test

private:
    bool begin(const Findings &found)
    {
        findings = found;
        monitor = std::make_unique<NotingMonitor>();
        return findings.obstacles.isEmpty() && monitor->state.tryBeginRun();
    }
};
