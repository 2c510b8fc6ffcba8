#include "headless/ExtractCommand.h"

#include "app/QuillorentAppDelegate.h"
#include "headless/Print.h"
#include "headless/RunCommand.h"
#include "tools/Threads.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(headless)
};

// An absolute path can't be taken for an option, nor be relative to another folder.
QString absolute(const QString &path) { return QFileInfo(path).absoluteFilePath(); }

/// What the tab of extraction would hold. False, with the reason on standard error, where an archive is
/// missing.
bool fillIn(QuillorentAppDelegate &delegate, const Options &options)
{
    if (!options.folder.isEmpty()) {
        delegate.extractPath.setText(absolute(options.folder));
        delegate.currentRecord().setValue(u"extractpath"_s, absolute(options.folder));
    }
    if (options.method) delegate.decryptionCombo01.selectIndex(*options.method);

    QStringList archives;
    for (const QString &archive : options.archives) {
        if (!QFileInfo::exists(archive)) {
            printError(Words::tr("There is no archive \"%1\".").arg(archive));
            return false;
        }
        archives.append(absolute(archive));
    }
    delegate.addArchives(archives);
    return true;
}

void answerPanels(QuillorentAppDelegate &delegate, PanelAnswers &answers)
{
    answers.answerQuestion(
        delegate.warningPanel02,
        [&] {
            return Words::tr(
                       "The extraction folder \"%1\" is not empty. Files of the same name would be replaced.")
                .arg(delegate.folderNotEmptyText01.text());
        },
        [&] { delegate.buttonLaunch02b(); }, [&] { delegate.buttonLaunch02Stop(); });
    // Which archive is damaged is said at the end.
    answers.answer(delegate.extractPanel01, [&] { delegate.stopProcess02b(); });
}

/// Whether all is there that a run needs to begin.
bool prepare(QuillorentAppDelegate &delegate, const Options &options)
{
    return fillIn(delegate, options) && supplyPassword(delegate, options.passwordFile, Asking::Once);
}

std::vector<std::string> encoded(const QStringList &paths)
{
    std::vector<std::string> bytes;
    for (const QString &path : paths)
        bytes.push_back(QFile::encodeName(path).toStdString());
    return bytes;
}

/// Whether a control character of UTF-8 begins there, and how many bytes it has; 0 where none does.
std::size_t controlAt(const std::string &path, std::size_t at)
{
    const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(path[index]); };
    if (byte(at) < 0x20 || byte(at) == 0x7f) return 1;
    const bool isSecondSet =
        byte(at) == 0xc2 && at + 1 < path.size() && byte(at + 1) >= 0x80 && byte(at + 1) < 0xa0;
    return isSecondSet ? 2 : 0;
}

/// A name can hold line breaks, which would begin another line, and what a terminal obeys: "\n", and "\ooo"
/// for the bytes of other control characters. So a backslash has one before it.
std::string inOneLine(const std::string &path)
{
    std::string line;
    std::size_t controlEnd = 0;
    for (std::size_t at = 0; at < path.size(); ++at) {
        controlEnd = std::max(controlEnd, at + controlAt(path, at));
        if (path[at] == '\n')
            line += "\\n";
        else if (path[at] == '\\')
            line += "\\\\";
        else if (at < controlEnd)
            line += QByteArray::number(static_cast<unsigned char>(path[at]), 8)
                        .rightJustified(3, '0')
                        .prepend('\\')
                        .toStdString();
        else
            line += path[at];
    }
    return line;
}

void printListing(const ArchiveListing &listing)
{
    for (int index = 0; index < int(listing.entries.size()); ++index) {
        const ArchiveListing::Entry &entry = listing.entries[std::size_t(index)];
        const QDateTime changed = QDateTime::fromSecsSinceEpoch(entry.modified, Qt::UTC);
        const QString time = entry.modified == 0 ? QString() : changed.toString(Qt::ISODate);
        const char *end = entry.kind == FileEntry::Kind::Folder ? "/" : "";
        std::printf("%lld\t%s\t%s%s\n", static_cast<long long>(entry.bytes), qUtf8Printable(time),
                    inOneLine(listing.pathOf(index)).c_str(), end);
    }
}

} // namespace

ExitStatus runExtraction(QuillorentAppDelegate &delegate, const Options &options)
{
    if (!prepare(delegate, options)) return NotStarted;
    PanelAnswers answers(delegate, options.yes);
    answerPanels(delegate, answers);
    return runToEnd(delegate, options, answers, delegate.buttonCancel02, [&] {
        if (options.only.isEmpty())
            delegate.buttonLaunch02();
        else
            delegate.restoreChosen(delegate.extractList.strings(), encoded(options.only));
    });
}

ExitStatus runListing(QuillorentAppDelegate &delegate, const Options &options)
{
    if (!prepare(delegate, options)) return NotStarted;
    PanelAnswers answers(delegate, options.yes);
    answerPanels(delegate, answers);
    const ExitStatus status = runToEnd(delegate, options, answers, delegate.buttonCancel02,
                                       [&] { delegate.lookInto(delegate.extractList.strings()); });
    // The run is at rest a moment before what it found is shown.
    if (status == Done && waitForThreads(std::chrono::minutes(1)))
        if (const auto listing = delegate.shownListing()) printListing(*listing);
    return status;
}
