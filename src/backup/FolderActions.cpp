#include "app/QuillorentAppDelegate.h"

void QuillorentAppDelegate::folderButton01Action()
{
    const auto chosen = openPanel({.title = u"Add folders and files"_qs,
                                   .canChooseDirectories = true,
                                   .allowsMultipleSelection = true});
    addFolders(chosen.value_or(QStringList()));
}

void QuillorentAppDelegate::addFolders(const QStringList &paths)
{
    const plist::Dictionary record = currentRecord();
    if (!paths.isEmpty() && !record.array(u"folders"_qs))
        record.setValue(u"folders"_qs, plist::Array::make());
    record.array(u"folders"_qs).append(paths);
    listTableView.reloadData();
}

void QuillorentAppDelegate::folderButton02Action()
{
    currentRecord().array(u"folders"_qs).removeAt(listTableView.selectedRows());
    listTableView.reloadData();
}

void QuillorentAppDelegate::fileButton01Action()
{
    const auto chosen = openPanel({.title = u"Choose the destination of the archives"_qs,
                                   .canChooseFiles = false,
                                   .canChooseDirectories = true,
                                   .canCreateDirectories = true});
    if (!chosen || chosen->isEmpty()) return;
    fileText01.setText(chosen->first());
    currentRecord().setValue(u"path"_qs, chosen->first());
}
