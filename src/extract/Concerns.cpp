#include "extract/Concerns.h"

#include "app/QuillorentAppDelegate.h"
#include "app/Workers.h"
#include "backup/Decisions.h"
#include "extract/ArchiveName.h"
#include "extract/Candidates.h"
#include "extract/Room.h"
#include "extract/VolumeSet.h"
#include "files/Names.h"

#include <QFileInfo>
#include <QLocale>
#include <QSet>

namespace {

/// Gathers the concerns over several archives.
class Concerns {
public:
    explicit Concerns(const QString &folder) : m_folder(folder) {}

    void look(const QString &archive);
    void lookForRoom(const QStringList &archives);
    [[nodiscard]] QStringList all() const { return m_all; }

private:
    void lookAtVolumes(const QString &archive);
    void lookAtProtection(const QString &archive);
    void lookAtKey();
    void lookAtPlaces(const QString &archive);
    void add(const QString &sentence)
    {
        if (!m_all.contains(sentence)) m_all.append(sentence);
    }

    const QuillorentAppDelegate &m_delegate = theDelegate();
    const QString m_folder;
    QSet<QString> m_taken; ///< by the archives before
    QStringList m_all;
};

QString nameOf(const QString &path) { return quillorentLibrary::lastPathComponent(path); }

bool isReadableFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.isReadable();
}

QString dataSize(qint64 bytes) { return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat); }

void Concerns::look(const QString &archive)
{
    if (!isReadableFile(archive)) {
        add(u"\"%1\" is not there any more, or can't be read."_qs.arg(archive));
        return;
    }
    lookAtVolumes(archive);
    lookAtProtection(archive);
    lookAtPlaces(archive);
}

void Concerns::lookAtVolumes(const QString &archive)
{
    const std::optional<QList<Volume>> volumes = volumesBeside(archive);
    const QString missing = volumes ? whatIsMissing(*volumes) : QString();
    if (!missing.isEmpty())
        add(u"The set of \"%1\" seems incomplete: %2. Put all its volumes into one folder."_qs.arg(
            nameOf(archive), missing));
}

void Concerns::lookAtProtection(const QString &archive)
{
    const QString command = quillorentLibrary::decideDecryption(archive).value_or(QString());
    if (command.isEmpty())
        add(u"The name of \"%1\" does not tell how it was encrypted. Choose the method, unless the "
            "name of what is in it tells."_qs.arg(nameOf(archive)));
    else if (command == u"smime")
        lookAtKey();
    else if (m_delegate.passCombo01.selectedIndex() == PasswordTab::Certificate)
        add(u"\"%1\" was encrypted by a password, and a certificate is chosen. Choose a password on "
            "the Passwords tab."_qs.arg(nameOf(archive)));
}

void Concerns::lookAtKey()
{
    const QString key = m_delegate.pkFile01.text();
    const QString certificate = m_delegate.certFile01.text();
    if (key.isEmpty())
        add(u"No private key is chosen. Without it nothing that was encrypted for a certificate can "
            "be decrypted."_qs);
    else if (!isReadableFile(key))
        add(u"The private key \"%1\" can't be read."_qs.arg(key));
    if (certificate.isEmpty())
        add(u"No certificate is chosen. Choose the one that the archives were encrypted for."_qs);
    else if (!isReadableFile(certificate))
        add(u"The certificate \"%1\" can't be read."_qs.arg(certificate));
}

void Concerns::lookAtPlaces(const QString &archive)
{
    const ExtractPaths paths =
        extractPaths(archive, m_folder,
                     quillorentLibrary::decideExtension(withoutVolumePart(archive)).value_or(QString()));
    for (const QString &path : {paths.encrypted, paths.inner}) {
        const QFileInfo there(path);
        if (there.isDir())
            add(u"\"%1\" is a folder, and a file of that name is needed for a while. Rename it."_qs.arg(
                path));
        else if (there.exists() || there.isSymLink())
            add(u"\"%1\" is there already and will be replaced, then removed."_qs.arg(path));
    }
    if (m_taken.contains(paths.encrypted))
        add(u"Two archives are called \"%1\" and would get in each other's way. Extract them one "
            "after the other."_qs.arg(nameOf(archive)));
    m_taken.insert(paths.encrypted);
}

void Concerns::lookForRoom(const QStringList &archives)
{
    if (!QFileInfo(m_folder).isWritable())
        add(u"Nothing may be written into \"%1\". Choose another folder, or change its permissions."_qs.arg(
            m_folder));
    QList<qint64> sizes;
    for (const QString &archive : archives)
        sizes.append(bytesOfArchive(archive));
    const qint64 needed = roomNeeded(sizes, workerLimit());
    const std::optional<qint64> free = roomFree(m_folder);
    if (free && *free < needed)
        add(u"There may not be enough room: about %1 are needed, and %2 are free in \"%3\"."_qs.arg(
            dataSize(needed), dataSize(*free), m_folder));
}

} // namespace

QStringList extractConcerns(const QStringList &archives, const QString &folder)
{
    Concerns concerns(folder);
    for (const QString &archive : archives)
        concerns.look(archive);
    concerns.lookForRoom(archives);
    return concerns.all();
}
