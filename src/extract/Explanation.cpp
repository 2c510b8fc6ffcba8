#include "extract/Explanation.h"

#include "files/Names.h"
#include "runs/Looks.h"

#include <QCoreApplication>
#include <algorithm>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(extract)
};

using Kind = FailedStage::Kind;
using Place = FailedStage::Place;

/// Below this many free bytes a disk counts as full.
constexpr qint64 nextToNothing = qint64(64) * 1024;

QString nameOf(const QString &path) { return quillorentLibrary::lastPathComponent(path); }

bool says(const FailedStage &stage, std::initializer_list<QStringView> words)
{
    const QString text = stage.tool.text();
    return std::any_of(words.begin(), words.end(),
                       [&](QStringView word) { return text.contains(word, Qt::CaseInsensitive); });
}

/// What has nothing to do with the archive; empty where that is not it.
QString explainByTool(const FailedStage &stage)
{
    if (!stage.tool.wasStarted) return stage.tool.firstLine();
    if (stage.tool.wasKilled)
        return Words::tr("%1 Extract again; if it happens again, the machine may be short of memory.")
            .arg(stage.tool.text().trimmed().section(u'\n', -1));
    return {};
}

/// What keeps the stage's files from being written; empty where nothing does.
QString explainByFolder(const FailedStage &stage)
{
    if (stage.kind == Kind::Test) return {};
    const bool isFull = stage.bytesFree && *stage.bytesFree < nextToNothing;
    if (isFull || says(stage, {u"No space left", u"Disk quota exceeded", u"no space left for"}))
        return Words::tr("The disk of \"%1\" is full. Make room, or choose a folder on another disk, and "
                         "extract again.")
            .arg(stage.folder);
    if (!stage.folderIsWritable || says(stage, {u"Read-only file system"}))
        return Words::tr(
                   "Nothing may be written into \"%1\". Choose another folder, or change its permissions.")
            .arg(stage.folder);
    return {};
}

QString taken(const QString &path)
{
    return Words::tr("\"%1\" is a folder, and a file of that name is needed for a while. Rename it, or "
                     "extract into another folder.")
        .arg(path);
}

QString explainArchive(const FailedStage &stage)
{
    const QString name = nameOf(stage.archive);
    if (says(stage, {u"Cannot find volume"}))
        return Words::tr(
                   "A volume is missing: %1. Put all volumes of the set into one folder and extract again.")
            .arg(stage.tool.firstLine());
    if (says(stage, {u"is not the first volume", u"in a volume before"}))
        return Words::
            tr("\"%1\" is not the first volume of its set. Add the first one; the others are found by it.")
                .arg(name);
    if (says(stage, {u"belongs to another set", u"was expected"}))
        return Words::tr(
                   "The volumes of \"%1\" do not belong together: %2. Put those of one set into one folder.")
            .arg(name, stage.tool.firstLine());
    if (says(stage, {u"Unexpected end"}))
        return Words::tr("\"%1\" is cut short: a part of it was lost when it was copied, or the copy is not "
                         "finished. Copy it again: %2.")
            .arg(name, stage.tool.firstLine());
    if (says(stage, {u"checksum", u"Corrupt", u"damaged", u"CRC"}))
        return Words::tr("\"%1\" is damaged: %2. Fetch another copy of it.")
            .arg(name, stage.tool.firstLine());
    if (says(stage, {u"is not a RAR archive"}))
        return Words::tr("\"%1\" is no archive, whatever its name: %2.").arg(name, stage.tool.firstLine());
    return Words::tr("\"%1\" can't be unpacked: %2.").arg(name, stage.tool.firstLine());
}

QString explainOuter(const FailedStage &stage)
{
    return stage.atEncrypted == Place::Folder ? taken(stage.encrypted) : explainArchive(stage);
}

QString explainWrongKey(const FailedStage &stage)
{
    if (!stage.keyIsReadable)
        return Words::tr("The private key can't be read. Choose the one that belongs to the certificate, on "
                         "the Password tab.");
    if (!stage.certificateIsReadable)
        return Words::tr("The certificate can't be read. Choose the one that the archive was encrypted for, "
                         "on the Password tab.");
    if (says(stage, {u"ends too early", u"goes on after the end", u"is damaged", u"is empty",
                     u"no S/MIME message", u"not an encrypted one"}))
        return Words::tr("What is in \"%1\" is damaged, or was not encrypted for a certificate: %2. Fetch "
                         "another copy, or choose another decryption method.")
            .arg(nameOf(stage.archive), stage.tool.firstLine());
    if (says(stage, {u"Could not read", u"unable to load", u"Could not find"}))
        return Words::tr("The private key or the certificate is not usable: %1. A key with a pass phrase "
                         "can't be used.")
            .arg(stage.tool.firstLine());
    return Words::tr("\"%1\" can't be decrypted with this private key and certificate: %2. Choose the pair "
                     "that it was encrypted for, on the Password tab.")
        .arg(nameOf(stage.archive), stage.tool.firstLine());
}

QString explainDecryption(const FailedStage &stage)
{
    const QString name = nameOf(stage.archive);
    if (stage.atInner == Place::Folder) return taken(stage.inner);
    if (stage.atEncrypted == Place::Folder) return taken(stage.encrypted);
    if (stage.atEncrypted == Place::Link)
        return Words::tr("\"%1\" holds a link where the encrypted file should be. It was not made by a "
                         "backup: don't trust it.")
            .arg(name);
    if (stage.atEncrypted == Place::Nothing)
        return Words::tr("\"%1\" does not hold the file \"%2\" that its name promises. Give the archive back "
                         "the name that it had; if it never had another one, no backup has made it.")
            .arg(name, nameOf(stage.encrypted));
    if (stage.decoderCommand.isEmpty())
        return Words::tr("The name of \"%1\" does not tell how it was encrypted. Choose the decryption "
                         "method, and extract again.")
            .arg(name);
    if (stage.decoderCommand == u"smime") return explainWrongKey(stage);
    if (!stage.commandByName.isEmpty() && stage.commandByName != stage.decoderCommand)
        return Words::tr("\"%1\" can't be decrypted with the method that is chosen; its name tells another "
                         "one. Choose the automatic method.")
            .arg(name);
    if (says(stage, {u"deprecated key derivation"})) return whyOtherOpenSsl();
    if (says(stage, {u"bad decrypt", u"wrong final block"}))
        return Words::tr("The password is wrong: \"%1\" can't be decrypted with it. Type the one that the "
                         "archive was made with.")
            .arg(name);
    if (says(stage, {u"bad magic number", u"error reading input file", u"wrong tag", u"bad base64",
                     u"is damaged", u"ends too early", u"goes on after the end", u"is empty"}))
        return Words::tr("What is in \"%1\" was not encrypted by a password, or it is damaged. Choose "
                         "another decryption method, or fetch another copy.")
            .arg(name);
    return Words::tr("\"%1\" can't be decrypted: %2.").arg(name, stage.tool.firstLine());
}

/// Where single entries are all that failed, their number; 0 where it may be more than that.
int entriesNotMade(const FailedStage &stage)
{
    const QStringList lines = stage.tool.text().split(u'\n', Qt::SkipEmptyParts);
    const QStringView refusal = u"Cannot create ";
    const bool isAll =
        std::ranges::all_of(lines, [&](const QString &line) { return line.startsWith(refusal); });
    return isAll ? int(lines.size()) : 0;
}

QString explainInner(const FailedStage &stage)
{
    const QString name = nameOf(stage.archive);
    if (!stage.innerIsArchive && stage.decoderCommand == u"smime")
        return Words::tr("What \"%1\" was decrypted to is no archive. The private key is wrong, or no "
                         "backup has made the archive.")
            .arg(name);
    if (!stage.innerIsArchive)
        return Words::tr("The password is probably wrong: what \"%1\" was decrypted to is no archive. Type "
                         "the one that the archive was made with.")
            .arg(name);
    if (says(stage, {u"leads out of"}))
        return Words::
            tr("\"%1\" holds names that lead out of \"%2\": %3. They were left out; don't trust the archive.")
                .arg(name, stage.folder, stage.tool.firstLine());
    if (says(stage, {u"is a link or a file in the destination", u"Is a directory", u"Not a directory",
                     u"File exists", u"Directory not empty"}))
        return Words::tr("A name in \"%1\" is taken by something else in \"%2\": %3. Rename that, or extract "
                         "into an empty folder.")
            .arg(name, stage.folder, stage.tool.firstLine());
    // The stock archiver leaves out links to absolute paths, and takes no argument of ours for otherwise.
    if (says(stage, {u"symbolic link", u"symlink"}))
        return Words::tr("The archiver left out a link of \"%1\": %2. It makes none that lead to an absolute "
                         "path or out of the folder. Quillorent's own archiver does: choose it on the Tools "
                         "tab, and extract again.")
            .arg(name, stage.tool.firstLine());
    if (const int count = entriesNotMade(stage); count > 0 && stage.keepsRest)
        return Words::tr(
                   "%n file(s) of \"%1\" can't be made in \"%2\", beginning with this: %3. All others are "
                   "there. Extract into a folder on another disk to have these, too.",
                   nullptr, count)
            .arg(name, stage.folder, stage.tool.firstLine());
    return explainArchive(stage);
}

QString explainByStage(const FailedStage &stage)
{
    switch (stage.kind) {
    case Kind::Test:
        return explainArchive(stage);
    case Kind::UnpackOuter:
        return explainOuter(stage);
    case Kind::Decrypt:
        return explainDecryption(stage);
    case Kind::UnpackInner:
        return explainInner(stage);
    case Kind::Place:
        break;
    }
    return stage.tool.text();
}

} // namespace

QString explain(const FailedStage &stage)
{
    if (QString text = explainByTool(stage); !text.isEmpty()) return text;
    if (QString text = explainByFolder(stage); !text.isEmpty()) return text;
    return explainByStage(stage);
}
