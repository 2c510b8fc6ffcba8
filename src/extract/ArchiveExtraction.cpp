#include "extract/ArchiveExtraction.h"

#include "app/ItemPipeline.h"
#include "app/QuillorentAppDelegate.h"
#include "backup/Decisions.h"
#include "extract/ArchiveName.h"
#include "extract/Candidates.h"
#include "extract/Explanation.h"
#include "extract/ExtractArguments.h"
#include "extract/Room.h"
#include "files/Names.h"
#include "tools/RegisteredTool.h"

#include <QFile>
#include <QFileInfo>

namespace {

using Place = FailedStage::Place;

/// One archive on its way back to a folder.
class ArchiveExtraction : private ItemPipeline {
public:
    explicit ArchiveExtraction(const ExtractJob &job);
    void run();

private:
    void unpackOuter();
    void takeRenamedEntry();
    void decrypt();
    [[nodiscard]] ToolResult runDecoder() const;
    void unpackInner();

    void judgeStage(FailedStage::Kind kind, const QString &line, const ToolResult &result);
    [[nodiscard]] QString explainFailure() const;

    const QString m_folder;
    const ExtractPaths m_paths;
    QString m_entryName; ///< of the encrypted file in the archive, where it is another than expected
    QString m_decoderCommand;
    bool m_innerIsArchive = false;
    FailedStage::Kind m_stage = FailedStage::Kind::UnpackOuter;
    ToolResult m_result; ///< of the last stage that ran
};

Place whatIsAt(const QString &path)
{
    const QFileInfo there(path);
    if (there.isSymLink()) return Place::Link;
    if (there.isDir()) return Place::Folder;
    return there.exists() ? Place::File : Place::Nothing;
}

/// Whether a file begins as RAR archives do, of any version.
bool beginsAsArchive(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(6) == QByteArray("Rar!\x1a\x07", 6);
}

QString extensionOf(const QString &archive)
{
    return quillorentLibrary::decideExtension(withoutVolumePart(archive)).value_or(QString());
}

ArchiveExtraction::ArchiveExtraction(const ExtractJob &job)
    : ItemPipeline(job.archive)
    , m_folder(job.folder)
    , m_paths(extractPaths(job.archive, job.folder, extensionOf(job.archive)))
{
}

void ArchiveExtraction::run()
{
    removeIfGoingOn(m_paths.encrypted);
    unpackOuter();
    takeRenamedEntry();
    decrypt();
    removeIfGoingOn(m_paths.encrypted);
    unpackInner();
    removeIfGoingOn(m_paths.inner);
    removeIfGoingOn(m_paths.leftover);

    if (m_succeeded) {
        succeed(m_delegate.progress02progressIndicator01);
    } else {
        const QString explanation = explainFailure();
        fail(u'\n' + explanation, explanation);
    }
    end();
}

void ArchiveExtraction::judgeStage(FailedStage::Kind kind, const QString &line, const ToolResult &result)
{
    m_stage = kind;
    m_result = result;
    judge(line, result);
}

void ArchiveExtraction::unpackOuter()
{
    if (isCancelled()) return;
    m_delegate.setStage(m_item, u"unpacking"_qs);
    judgeStage(FailedStage::Kind::UnpackOuter, u"\nunRAR 1st"_qs,
               runRegisteredTool(u"RAR"_qs, extractArguments::unpackOuter(m_item, m_folder)));
}

// An archive that was renamed still holds its encrypted file under the old name.
void ArchiveExtraction::takeRenamedEntry()
{
    if (!goesOn() || whatIsAt(m_paths.encrypted) != Place::Nothing) return;
    const QString names = runRegisteredTool(u"RAR"_qs, extractArguments::list(m_item)).text();
    if (!names.endsWith(u'\n') || names.count(u'\n') != 1) return;
    const QString name = quillorentLibrary::lastPathComponent(names.chopped(1));
    // Where the archiver knows no listing, this is what it says of that, and no file is called so.
    const QString entry = quillorentLibrary::joined(m_folder, name);
    if (whatIsAt(entry) == Place::File && QFile::rename(entry, m_paths.encrypted)) m_entryName = name;
}

void ArchiveExtraction::decrypt()
{
    if (!goesOn()) return;
    m_delegate.setStage(m_item, u"decrypting"_qs);
    m_decoderCommand = quillorentLibrary::decideDecryption(m_item).value_or(QString());
    if (m_decoderCommand.isEmpty() && !m_entryName.isEmpty())
        m_decoderCommand = quillorentLibrary::decideEncryption(m_entryName).value_or(QString());
    judgeStage(FailedStage::Kind::Decrypt, u"\nDECODE"_qs, runDecoder());
}

ToolResult ArchiveExtraction::runDecoder() const
{
    // What an archive holds may be a trap: a link that leads the decoder out of the folder, to read or to
    // write.
    if (whatIsAt(m_paths.encrypted) == Place::Link) return {u"\"%1\" is a link"_qs.arg(m_paths.encrypted)};
    if (whatIsAt(m_paths.inner) == Place::Link) QFile::remove(m_paths.inner);

    if (m_decoderCommand == u"smime")
        return runRegisteredTool(u"OpenSSL"_qs,
                                 extractArguments::decryptByCertificate(m_paths.encrypted, m_paths.inner,
                                                                        m_delegate.pkFile01.text(),
                                                                        m_delegate.certFile01.text()));
    return runRegisteredTool(
        u"OpenSSL"_qs, extractArguments::decryptByPassword(m_decoderCommand, m_paths.encrypted, m_paths.inner,
                                                           m_delegate.passwordSelector()));
}

void ArchiveExtraction::unpackInner()
{
    if (!goesOn()) return;
    m_delegate.setStage(m_item, u"extracting"_qs);
    m_innerIsArchive = beginsAsArchive(m_paths.inner);
    ToolResult result = runRegisteredTool(u"RAR"_qs, extractArguments::unpackInner(m_paths.inner, m_folder));
    // Now and then a wrong password decrypts to rubbish, without a word, and some archivers say nothing about
    // rubbish.
    if (result.isSilent() && !m_innerIsArchive) result.output = u"\"%1\" is no archive"_qs.arg(m_paths.inner);
    judgeStage(FailedStage::Kind::UnpackInner, u"\nunRAR 2nd"_qs, result);
}

QString ArchiveExtraction::explainFailure() const
{
    const auto isReadableFile = [](const QString &path) {
        return QFileInfo(path).isFile() && QFileInfo(path).isReadable();
    };
    const QString nameToTell = m_entryName.isEmpty() ? withoutVolumePart(m_item) : m_entryName;
    return explain({.kind = m_stage,
                    .tool = m_result,
                    .archive = m_item,
                    .folder = m_folder,
                    .folderIsWritable = QFileInfo(m_folder).isWritable(),
                    .bytesFree = roomFree(m_folder),
                    .encrypted = m_paths.encrypted,
                    .inner = m_paths.inner,
                    .atEncrypted = whatIsAt(m_paths.encrypted),
                    .atInner = whatIsAt(m_paths.inner),
                    .innerIsArchive = m_innerIsArchive,
                    .decoderCommand = m_decoderCommand,
                    .commandByName = quillorentLibrary::decideEncryption(nameToTell).value_or(QString()),
                    .keyIsReadable = isReadableFile(m_delegate.pkFile01.text()),
                    .certificateIsReadable = isReadableFile(m_delegate.certFile01.text())});
}

} // namespace

void quillorentLibrary::runProcess2(const ExtractJob &job)
{
    ArchiveExtraction extraction(job);
    extraction.run();
}
