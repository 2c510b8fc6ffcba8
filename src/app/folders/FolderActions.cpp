#include "app/QuillorentAppDelegate.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(folders)
};

} // namespace

void QuillorentAppDelegate::folderButton01Action()
{
    const auto chosen = openPanel({.title = Words::tr("Add folders and files"),
                                   .canChooseDirectories = true,
                                   .allowsMultipleSelection = true});
    addFolders(chosen.value_or(QStringList()));
}

void QuillorentAppDelegate::addFolders(const QStringList &paths) { m_listTable.add(paths); }

void QuillorentAppDelegate::folderButton02Action() { m_listTable.removeSelected(); }

void QuillorentAppDelegate::fileButton01Action()
{
    chooseFolder(Words::tr("Choose the destination of the archives"), fileText01, u"path"_s);
}
