#include "backup/SourceLook.h"

#include "files/Entry.h"
#include "files/Names.h"
#include "files/Paths.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(backup)
};

} // namespace

QString canonicalPath(const QString &path)
{
    const QFileInfo file(path);
    QString there = file.canonicalFilePath();
    if (!there.isEmpty()) return there;
    const QString folder = QFileInfo(file.path()).canonicalFilePath();
    return folder.isEmpty() ? quillorentLibrary::standardizePath(path)
                            : quillorentLibrary::joined(folder, file.fileName());
}

SourceState stateOfSource(const QString &source, const QString &destination)
{
    if (!QFileInfo::exists(quillorentLibrary::standardizePath(source))) return SourceState::Missing;
    const auto there = entryAt(source); // a slash at its end leads through a link
    if (there && there->kind == FileEntry::Kind::Other) return SourceState::Unsuitable;
    if (there && there->kind == FileEntry::Kind::Link) return SourceState::Link;
    if (destination.isEmpty()) return SourceState::Fine;
    const QString folder = canonicalPath(source);
    const bool isAround =
        QFileInfo(folder).isDir() && quillorentLibrary::isInside(canonicalPath(destination), folder);
    return isAround ? SourceState::HoldsDestination : SourceState::Fine;
}

QString concernAboutSource(SourceState state, const QString &source, const QString &destination)
{
    switch (state) {
    case SourceState::Fine:
        return {};
    case SourceState::Missing:
        return Words::tr(
                   "\"%1\" is not there, and is left out. Connect its disk, or remove it from the list.")
            .arg(source);
    case SourceState::Unsuitable: {
        const auto there = entryAt(source);
        return Words::tr("\"%1\" is %2, and is left out.")
            .arg(source, describeKind(there ? there->kind : FileEntry::Kind::Other));
    }
    case SourceState::Link:
        return Words::tr("\"%1\" is a link, and only the link itself would be backed up, nothing that it "
                         "leads to. Put a slash behind it, or add the folder that it leads to.")
            .arg(source);
    case SourceState::HoldsDestination:
        return Words::tr("The destination \"%1\" lies in \"%2\", so each archive would hold the ones before "
                         "it. Choose another destination.")
            .arg(destination, source);
    }
    return {};
}
