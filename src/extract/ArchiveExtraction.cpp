#include "extract/ArchiveExtraction.h"

#include "extract/ArchiveListing.h"
#include "extract/ChosenPaths.h"
#include "extract/Explanation.h"
#include "extract/ExtractArguments.h"
#include "extract/UsualRights.h"
#include "files/Names.h"
#include "files/Paths.h"
#include "files/Room.h"
#include "files/Sizes.h"
#include "runs/ItemPipeline.h"
#include "runs/Run.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(extract)
};

using Place = FailedStage::Place;
using quillorentLibrary::joined;
using quillorentLibrary::lastPathComponent;

// Of the time that an archive takes, measured on 500 MB in one file, in 20,000, and of text.
constexpr double unpackingShare = 0.30;
constexpr double decryptingShare = 0.27;
constexpr double extractingShare = 0.43;

/// One archive on its way back to a folder.
class ArchiveExtraction : private ItemPipeline {
public:
    ArchiveExtraction(Run &run, const ExtractOrder &order, qsizetype index, ExtractShared &shared);
    void run();

private:
    [[nodiscard]] bool begin();
    void unpackOuter();
    [[nodiscard]] ToolResult makeWayForEntries(const QStringList &entries);
    void takeRenamedEntry();
    void decrypt();
    [[nodiscard]] ToolResult runDecoder();
    void unpackInner();
    [[nodiscard]] QStringList entriesOf(const QString &archive) const;
    void listContents();
    void bringChosen();
    void noteContents(const QString &path);
    struct Contents;
    [[nodiscard]] Contents contentsOf(const QString &archive) const;
    [[nodiscard]] QString folderForContents(Contents &contents);

    void judgeStage(FailedStage::Kind kind, const QString &line, const ToolResult &result, bool isMade,
                    const QString &product);
    [[nodiscard]] QString explainFailure() const;

    const ExtractOrder &m_order;
    ExtractShared &m_shared;
    const ExtractItem &m_paths;
    HeldPaths m_held;
    const QString m_folder; ///< where the stages work
    QString m_entryName;    ///< of the encrypted file in the archive, where it is another than expected
    QString m_command;
    bool m_isDecrypted = false;
    bool m_isExtracted = false;
    bool m_innerIsArchive = false;
    QString m_example; ///< of a path in the archive
    FailedStage::Kind m_stage = FailedStage::Kind::UnpackOuter;
    ToolResult m_result; ///< of the last stage that ran
};

Place whatIsAt(const QString &path)
{
    const auto there = entryAt(path);
    if (!there) return Place::Nothing;
    if (there->kind == FileEntry::Kind::Link) return Place::Link;
    return there->kind == FileEntry::Kind::Folder ? Place::Folder : Place::File;
}

/// In the folder of a run's own, beside the files between the stages.
QString contentsFolder(const QString &privateFolder) { return joined(privateFolder, u"contents"_s); }

/// Whether a file begins as RAR archives do, of any version.
bool beginsAsArchive(const QString &path)
{
    QFile file(path);
    return whatIsAt(path) == Place::File && file.open(QIODevice::ReadOnly) &&
           file.read(6) == QByteArray("Rar!\x1a\x07", 6);
}

/// Whether some of an archive's entries have come into the folder. Names that the archiver prints otherwise
/// than they are don't count against it, nor does an archive that it can't list.
bool hasCome(const QStringList &some, const QString &folder)
{
    return some.isEmpty() || std::any_of(some.begin(), some.end(), [&](const QString &entry) {
               return whatIsAt(joined(folder, entry)) != Place::Nothing;
           });
}

/// What is kept of an archive's entries, however many there are.
struct ArchiveExtraction::Contents {
    QStringList some; ///< the first ones and the last
    EntryNames names; ///< where there are other archives that may have the same
    QString common;   ///< the deepest path that all of them are, or lie in, behind a slash; empty where there
                      ///< are none
};

ArchiveExtraction::ArchiveExtraction(Run &run, const ExtractOrder &order, qsizetype index,
                                     ExtractShared &shared)
    : ItemPipeline(run, index, order.items[index].archive, order.known)
    , m_order(order)
    , m_shared(shared)
    , m_paths(order.items[index])
    , m_held(shared.underWay)
    , m_folder(order.privateFolder.isEmpty() ? order.folder : order.privateFolder)
    , m_command(m_paths.command)
{
    // A folder of the run's own is in clear as a whole.
    expect({m_paths.paths.encrypted, m_paths.paths.inner},
           order.privateFolder.isEmpty() ? m_paths.paths.inner : QString());
}

bool ArchiveExtraction::begin()
{
    if (m_order.privateFolder.isEmpty() || isCancelled()) return true;
    const ToolResult result = openPrivateFolder(m_order.privateFolder);
    if (result.isSilent()) return true;
    judgeStage(FailedStage::Kind::Place, u"\nRESTORE"_s, result, true, m_order.privateFolder);
    return false;
}

void ArchiveExtraction::run()
{
    const ExtractPaths &paths = m_paths.paths;
    if (begin()) unpackOuter();
    takeRenamedEntry();
    decrypt();
    if (goesOn() && m_isDecrypted) removeOwn(paths.encrypted);
    unpackInner();
    if (goesOn() && m_isExtracted) removeOwn(paths.inner);
    // Only where this run has put it there: something else was set aside.
    if (goesOn() && m_isExtracted && paths.leftover != paths.encrypted) QFile::remove(paths.leftover);
    listContents();
    bringChosen();

    if (m_succeeded) {
        succeed(quillorentLibrary::calculateSize(m_item));
    } else {
        const QString explanation = explainFailure();
        fail(u'\n' + explanation, explanation);
    }
    closePrivateFolder();
    m_held.letGo();
    end(m_isExtracted, {});
}

void ArchiveExtraction::judgeStage(FailedStage::Kind kind, const QString &line, const ToolResult &result,
                                   bool isMade, const QString &product)
{
    m_stage = kind;
    m_result = result;
    judge(line, result, isMade, product);
    noteBetween(product);
}

QStringList ArchiveExtraction::entriesOf(const QString &archive) const
{
    QStringList entries;
    runForLines(m_order.archiver, extractArguments::list(archive),
                [&](const QString &entry) { entries.append(entry); });
    return entries;
}

ArchiveExtraction::Contents ArchiveExtraction::contentsOf(const QString &archive) const
{
    constexpr qsizetype sample = 100;
    const bool mayMeetOthers = m_order.items.size() > 1;
    Contents contents;
    runForLines(m_order.archiver, extractArguments::list(archive), [&](const QString &entry) {
        if (contents.some.size() > sample) contents.some.removeLast();
        contents.some.append(entry);
        const QString path = u'/' + entry;
        contents.common = contents.common.isEmpty() ? path : commonFolder(contents.common, path);
        if (mayMeetOthers) contents.names.add(entry);
    });
    return contents;
}

/// Nothing that is in the folder may be written over by a file that the archive holds under another name than
/// its own. Where the archiver knows no listing, its words are no file's name.
ToolResult ArchiveExtraction::makeWayForEntries(const QStringList &entries)
{
    for (const QString &path : {m_paths.paths.encrypted, m_paths.paths.leftover})
        if (ToolResult result = makeWay(path); !result.isSilent()) return result;
    for (const QString &path : entries) {
        if (whatIsAt(path) == Place::Nothing || whatIsAt(path) == Place::Folder) continue;
        if (ToolResult result = makeWay(path); !result.isSilent()) return result;
    }
    return {.output = QString()};
}

void ArchiveExtraction::unpackOuter()
{
    if (isCancelled()) return;
    setStage(u"unpacking"_s, {unpackingShare, bytesToDo()});
    // An archive that was renamed holds its encrypted file under the old name, which another's may have, too.
    QStringList entries;
    for (const QString &entry : entriesOf(m_item))
        entries.append(joined(m_folder, lastPathComponent(entry)));
    const ExtractPaths &paths = m_paths.paths;
    if (!m_held.hold(QStringList{paths.encrypted, paths.inner, paths.leftover} + entries,
                     [this] { return isCancelled(); }))
        return;
    ToolResult result = makeWayForEntries(entries);
    if (result.isSilent())
        result = runStage(m_order.archiver, extractArguments::unpackOuter(m_item, m_folder));
    // Whether the encrypted file is there is for the next stage to say: its name may be another one.
    judgeStage(FailedStage::Kind::UnpackOuter, u"\nunRAR 1st"_s, result, true, m_paths.paths.encrypted);
}

// An archive that was renamed still holds its encrypted file under the old name.
void ArchiveExtraction::takeRenamedEntry()
{
    if (!goesOn() || whatIsAt(m_paths.paths.encrypted) != Place::Nothing) return;
    const QStringList entries = entriesOf(m_item);
    if (entries.size() != 1) return;
    const QString name = lastPathComponent(entries.first());
    const QString entry = joined(m_folder, name);
    if (whatIsAt(entry) == Place::File && renameToFree(entry, m_paths.paths.encrypted) == 0)
        m_entryName = name;
    noteBetween(m_paths.paths.encrypted);
}

void ArchiveExtraction::decrypt()
{
    if (!goesOn()) return;
    setStage(u"decrypting"_s, {decryptingShare, bytesAt(m_paths.paths.encrypted)});
    if (m_command.isEmpty() && !m_entryName.isEmpty())
        m_command = commandOfArchive(m_entryName, m_order.methods);
    const ToolResult result = runDecoder();
    const bool isMade = whatIsAt(m_paths.paths.inner) == Place::File;
    judgeStage(FailedStage::Kind::Decrypt, u"\nDECODE"_s, result, isMade, m_paths.paths.inner);
    m_isDecrypted = m_succeeded && isMade && m_distrust.isEmpty();
}

ToolResult ArchiveExtraction::runDecoder()
{
    // What an archive holds may be a trap: a link that leads the decoder out of the folder, to read or to
    // write.
    const ExtractPaths &paths = m_paths.paths;
    if (whatIsAt(paths.encrypted) == Place::Link) return {Words::tr("\"%1\" is a link").arg(paths.encrypted)};
    if (ToolResult result = checkInput(paths.encrypted); !result.isSilent()) return result;
    if (ToolResult result = makeWay(paths.inner); !result.isSilent()) return result;

    if (m_command == u"smime")
        return runStage(m_order.decoder, extractArguments::decryptByCertificate(
                                             paths.encrypted, paths.inner, m_order.key, m_order.certificate));
    QString password = m_order.password.text();
    QStringList arguments =
        extractArguments::decryptByPassword(m_command, paths.encrypted, paths.inner, password);
    ToolResult result = runStage(m_order.decoder, arguments);
    wipe(arguments);
    wipe(password);
    return result;
}

/// The extraction folder; or one of the archive's own in it, where its entries would write over what another
/// archive of this run has brought back.
QString ArchiveExtraction::folderForContents(Contents &contents)
{
    if (m_order.isPart()) return contentsFolder(m_folder);
    if (m_order.items.size() < 2 || m_shared.names.claim(std::move(contents.names))) return m_order.folder;
    const QString inner = lastPathComponent(m_paths.paths.inner);
    const QString name = inner.endsWith(u".rar"_s) ? inner.chopped(4) : inner + u" contents"_s;
    QString folder = joined(m_order.folder, name);
    for (int number = 2; !QDir().mkdir(folder) && number < 1000; ++number)
        folder = joined(m_order.folder, u"%1 (%2)"_s.arg(name, QString::number(number)));
    const std::lock_guard lock(m_shared.mutex);
    m_shared.ownFolders.append(folder);
    return folder;
}

void ArchiveExtraction::unpackInner()
{
    if (!goesOn()) return;
    setStage(u"extracting"_s, {extractingShare, bytesAt(m_paths.paths.inner)});
    const QString &inner = m_paths.paths.inner;
    m_innerIsArchive = beginsAsArchive(inner);
    Contents contents = m_innerIsArchive ? contentsOf(inner) : Contents();
    const QString folder = folderForContents(contents);
    ToolResult result = checkInput(inner);
    if (m_order.isPart()) QDir().mkdir(folder);
    if (result.isSilent()) {
        const UsualRights rights;
        result = runStage(m_order.archiver, extractArguments::unpackInner(inner, folder));
    }
    // Now and then a wrong password decrypts to rubbish, without a word, and some archivers say nothing about
    // rubbish.
    if (result.isSilent() && !m_innerIsArchive) result.output = Words::tr("\"%1\" is no archive").arg(inner);
    judgeStage(FailedStage::Kind::UnpackInner, u"\nunRAR 2nd"_s, result, hasCome(contents.some, folder),
               folder);
    m_isExtracted = m_succeeded && m_distrust.isEmpty();
    if (!contents.some.isEmpty()) m_example = contents.some.first();
    if (m_isExtracted && !m_order.isPart()) noteContents(folder + contents.common);
}

/// Notes the folder of what was brought back at `path`, or the path itself where it is one.
void ArchiveExtraction::noteContents(const QString &path)
{
    // A name may be printed otherwise than it is.
    QString folder = QDir::cleanPath(path);
    while (whatIsAt(folder) != Place::Folder && folder.size() > m_order.folder.size())
        folder = QFileInfo(folder).path();
    if (!quillorentLibrary::isInside(folder, m_order.folder)) return;
    m_run.journal().changeItem(m_index, [&](ItemRecord &item) {
        item.contents = item.contents.isEmpty() ? folder : commonFolder(item.contents, folder);
    });
}

void ArchiveExtraction::listContents()
{
    if (!m_isExtracted || !m_order.listing) return;
    *m_order.listing =
        listArchive(m_item, contentsFolder(m_folder), m_run.state().elapsed(), [this] { return goesOn(); });
    m_isExtracted = goesOn();
}

void ArchiveExtraction::bringChosen()
{
    if (!m_isExtracted || m_order.chosen.empty()) return;
    m_isExtracted = false; // before it is where it was chosen for, nothing has come back
    if (!goesOn()) return;
    setStage(u"placing"_s, {}); // by renaming: it takes no time
    const QString reason = ::bringChosen(m_order, m_item, contentsFolder(m_folder), m_example,
                                         {.keep = [this](const Aside &kept) { noteKept(kept); },
                                          .keptAsItWas = [this] { noteNotKept(); },
                                          .goesOn = [this] { return !isCancelled(); }},
                                         [this](const QString &path) { noteContents(path); });
    if (isCancelled()) return;
    judgeStage(FailedStage::Kind::Place, u"\nRESTORE"_s, {.output = reason}, true, m_order.folder);
    m_isExtracted = m_succeeded;
}

QString ArchiveExtraction::explainFailure() const
{
    const auto isReadableFile = [](const QString &path) {
        return QFileInfo(path).isFile() && QFileInfo(path).isReadable();
    };
    const QString commandByName =
        m_entryName.isEmpty() ? m_paths.commandByName : commandOfArchive(m_entryName, m_order.methods);
    return explain({.kind = m_stage,
                    .tool = m_result,
                    .archive = m_item,
                    .folder = m_order.folder,
                    .folderIsWritable = QFileInfo(m_order.folder).isWritable(),
                    .bytesFree = roomFree(m_order.folder),
                    .encrypted = m_paths.paths.encrypted,
                    .inner = m_paths.paths.inner,
                    .atEncrypted = whatIsAt(m_paths.paths.encrypted),
                    .atInner = whatIsAt(m_paths.paths.inner),
                    .innerIsArchive = m_innerIsArchive,
                    .keepsRest = !m_order.isPart(),
                    .decoderCommand = m_command,
                    .commandByName = commandByName,
                    .keyIsReadable = isReadableFile(m_order.key),
                    .certificateIsReadable = isReadableFile(m_order.certificate)});
}

} // namespace

void extractItem(Run &run, const ExtractOrder &order, qsizetype index, ExtractShared &shared)
{
    ArchiveExtraction extraction(run, order, index, shared);
    extraction.run();
}
