#include "extract/Candidates.h"

#include "app/QuillorentAppDelegate.h"
#include "backup/Decisions.h"
#include "extract/ArchiveName.h"
#include "extract/ExtractArguments.h"
#include "files/Names.h"
#include "tools/RegisteredTool.h"

#include <QDir>
#include <QRegularExpression>

namespace {

bool isArchive(const QString &path) { return path.endsWith(u".rar"_qs, Qt::CaseInsensitive); }

QStringList archivesIn(const QString &folder)
{
    QStringList paths;
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden))
        if (isArchive(file.fileName())) paths.append(file.filePath());
    // By number, however many digits: volume 10 after volume 9.
    const auto place = [](const QString &path) {
        const VolumeName volume = volumeName(path).value_or(VolumeName{path});
        return std::pair(volume.set, volume.number);
    };
    std::sort(paths.begin(), paths.end(),
              [&](const QString &left, const QString &right) { return place(left) < place(right); });
    return paths;
}

/// Whether the first volume of the set is among `archives`.
bool holdsFirstVolume(const QStringList &archives, const QString &set)
{
    return std::any_of(archives.begin(), archives.end(), [&](const QString &path) {
        const std::optional<VolumeName> volume = volumeName(path);
        return volume && volume->set == set && !volume->isLater();
    });
}

QString describe(const QString &leftOut, const QStringList &all)
{
    const QString name = quillorentLibrary::lastPathComponent(leftOut);
    const std::optional<VolumeName> volume = volumeName(leftOut);
    if (!volume || !volume->isLater())
        return u"\"%1\" is not extracted: its path has \"part\" and, after that, a number as later "
               "volumes have it. Move or rename it, and add it again."_qs.arg(leftOut);
    if (holdsFirstVolume(all, volume->set)) return {};
    return u"The first volume is missing: \"%1\" is volume %2 of its set. Add the first one, "
           "\"%3.part1.rar\" or \"…part01.rar\"."_qs.arg(name)
               .arg(volume->number)
               .arg(quillorentLibrary::lastPathComponent(volume->set));
}

QString nameOfMethod(int choice)
{
    static const QStringList methods{u"OpenSSL-AES"_qs, u"OpenSSL-BF"_qs, u"OpenSSL-3D"_qs,
                                     u"OpenSSL-SMIME"_qs};
    return methods.value(choice, methods.first());
}

} // namespace

QStringList archivesAmong(const QStringList &paths)
{
    QStringList archives;
    for (const QString &path : paths) {
        if (QFileInfo(path).isDir())
            archives += archivesIn(path);
        else if (isArchive(path))
            archives.append(path);
    }
    return archives;
}

QString describeLeftOut(const QStringList &added, const QStringList &all, const QStringList &extracted)
{
    // One sentence is enough: of a set without its first volume, or of a folder, each would say the same.
    for (const QString &path : added) {
        const QString text = extracted.contains(path) ? QString() : describe(path, all);
        if (!text.isEmpty()) return text;
    }
    return {};
}

ToolResult testArchive(const QString &archive)
{
    return runRegisteredTool(u"RAR"_qs, extractArguments::test(archive));
}

QStringList QuillorentAppDelegate::filterForExtraction(const QStringList &paths) const
{
    // Over the whole path, folders included.
    static const QRegularExpression laterVolume(
        QRegularExpression::anchoredPattern(u".*part.*[2-9].*|.*part.*11.*|.*part.*10.*"_qs),
        QRegularExpression::DotMatchesEverythingOption);
    QStringList candidates;
    for (const QString &path : paths)
        if (!laterVolume.match(path).hasMatch()) candidates.append(path);
    return candidates;
}

bool quillorentLibrary::testFileToExtract(const QString &archive) { return testArchive(archive).isSilent(); }

std::optional<QString> quillorentLibrary::decideDecryption(const QString &archive)
{
    const QuillorentAppDelegate &delegate = theDelegate();
    const int choice = delegate.decryptionCombo01.selectedIndex();
    if (choice == ExtractTab::automaticDecryption) return decideEncryption(withoutVolumePart(archive));
    return delegate.setting(u"encparam"_qs, nameOfMethod(choice));
}
