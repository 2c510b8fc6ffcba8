#include "app/QuillorentAppDelegate.h"

void QuillorentAppDelegate::folderButton01Action()
{
    const auto chosen = openPanel({.title = u"Add folders and files"_qs,
                                   .canChooseDirectories = true,
                                   .allowsMultipleSelection = true});
    addFolders(chosen.value_or(QStringList()));
}

void QuillorentAppDelegate::addFolders(const QStringList &paths) { m_listTable.add(paths); }

void QuillorentAppDelegate::folderButton02Action() { m_listTable.removeSelected(); }

void QuillorentAppDelegate::fileButton01Action()
{
    chooseFolder(u"Choose the destination of the archives"_qs, fileText01, u"path"_qs);
}
