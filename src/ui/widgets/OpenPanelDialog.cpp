#include "ui/widgets/OpenPanelDialog.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>
#include <memory>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

/// Takes files and folders alike: what is selected when the dialog is accepted is the answer, where the
/// ordinary dialog would enter a folder.
class MixedFileDialog : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

    void accept() override
    {
        if (!selection().isEmpty()) done(Accepted);
    }

    [[nodiscard]] QStringList selection() const
    {
        const QStringList selected = selectedFiles();
        return selected.isEmpty() ? typed() : selected;
    }

private:
    [[nodiscard]] QStringList typed() const
    {
        const auto *field = findChild<QLineEdit *>(u"fileNameEdit"_s);
        if (!field || field->text().isEmpty()) return {};
        const QString path = QDir::cleanPath(directory().absoluteFilePath(field->text()));
        return QFileInfo::exists(path) ? QStringList{path} : QStringList{};
    }
};

/// Lets through folders, and files with one of the extensions; the extension "" is that of files that have
/// none.
class ExtensionFilter : public QSortFilterProxyModel {
public:
    ExtensionFilter(QStringList extensions, QObject *parent)
        : QSortFilterProxyModel(parent), m_extensions(std::move(extensions))
    {
    }

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex &parent) const override
    {
        const auto *files = qobject_cast<QFileSystemModel *>(sourceModel());
        if (!files) return true;
        const QModelIndex entry = files->index(row, 0, parent);
        return files->isDir(entry) ||
               m_extensions.contains(QFileInfo(files->fileName(entry)).suffix(), Qt::CaseInsensitive);
    }

private:
    const QStringList m_extensions;
};

// A screen reader knows them by their labels only, and the toolkit doesn't say which those are.
void nameCombos(const QFileDialog &dialog)
{
    for (const QString &name : {u"lookIn"_s, u"fileType"_s}) {
        auto *label = dialog.findChild<QLabel *>(name + u"Label"_s);
        auto *combo = dialog.findChild<QComboBox *>(name + u"Combo"_s);
        if (label && combo) label->setBuddy(combo);
    }
}

std::unique_ptr<QFileDialog> makeMixedDialog(QWidget *parent)
{
    auto dialog = std::make_unique<MixedFileDialog>(parent);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    for (QAbstractItemView *view : dialog->findChildren<QAbstractItemView *>())
        if (view->objectName() == u"listView" || view->objectName() == u"treeView")
            view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    nameCombos(*dialog);
    return dialog;
}

void setMode(QFileDialog &dialog, const outlets::OpenPanel &panel)
{
    if (panel.canChooseDirectories) {
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
    } else {
        dialog.setFileMode(panel.allowsMultipleSelection ? QFileDialog::ExistingFiles
                                                         : QFileDialog::ExistingFile);
    }
}

void setFilter(QFileDialog &dialog, const QStringList &extensions)
{
    if (extensions.isEmpty()) return;
    // Name patterns can't say "without an extension"; a filter of our own can, and works in Qt's own dialog
    // only.
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setProxyModel(new ExtensionFilter(extensions, &dialog));
}

/// Where people look: their own folders, and the disks that they have put in. Only names are read of those:
/// one that doesn't answer must not keep the dialog from opening.
QList<QUrl> places()
{
    QStringList paths;
    using Location = QStandardPaths;
    for (const auto each : {Location::HomeLocation, Location::DocumentsLocation, Location::PicturesLocation,
                            Location::DesktopLocation})
        paths.append(Location::standardLocations(each).value(0));
    const QString user = qEnvironmentVariable("USER");
    for (const QString &folder : {u"/media/"_s + user, u"/run/media/"_s + user}) {
        if (user.isEmpty()) break;
        for (const QString &name : QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            paths.append(QDir(folder).filePath(name));
    }
    paths.removeDuplicates();
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    return urls;
}

} // namespace

std::unique_ptr<QFileDialog> makeOpenPanelDialog(const outlets::OpenPanel &panel, QWidget *parent)
{
    const bool mixed = panel.canChooseFiles && panel.canChooseDirectories;
    auto dialog = mixed ? makeMixedDialog(parent) : std::make_unique<QFileDialog>(parent);
    if (!mixed) setMode(*dialog, panel);
    dialog->setWindowTitle(panel.title);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setLabelText(QFileDialog::Accept, QFileDialog::tr("&Choose"));
    dialog->setOption(QFileDialog::ReadOnly, !panel.canCreateDirectories);
    dialog->setOption(QFileDialog::DontResolveSymlinks, !panel.resolvesAliases);
    setFilter(*dialog, panel.allowedFileTypes);
    dialog->resize(780, 480);
    dialog->setDirectory(QFileInfo(panel.directory).isDir() ? panel.directory : QDir::homePath());
    dialog->setSidebarUrls(places());
    return dialog;
}

std::optional<QStringList> askForPaths(const outlets::OpenPanel &panel, QWidget *parent)
{
    const auto dialog = makeOpenPanelDialog(panel, parent);
    if (dialog->exec() != QDialog::Accepted) return std::nullopt;
    const auto *mixed = dynamic_cast<MixedFileDialog *>(dialog.get());
    return mixed ? mixed->selection() : dialog->selectedFiles();
}

} // namespace ui
