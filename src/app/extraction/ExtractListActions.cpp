#include "app/QuillorentAppDelegate.h"
#include "extract/Candidates.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(extraction)
};

void removeFrom(const plist::Array &list, const QString &path)
{
    QList<int> equal;
    const QStringList entries = list.strings();
    for (int index = 0; index < entries.size(); ++index)
        if (entries[index] == path) equal.append(index);
    list.removeAt(equal);
}

} // namespace

void QuillorentAppDelegate::extractButton01Action()
{
    const auto chosen = openPanel({.title = Words::tr("Add archives"),
                                   .allowsMultipleSelection = true,
                                   .allowedFileTypes = {u"rar"_s}});
    addArchives(chosen.value_or(QStringList()));
}

void QuillorentAppDelegate::addArchives(const QStringList &paths)
{
    const QStringList archives = archivesAmong(paths);
    extractFullList.append(archives);
    extractList.append(filterForExtraction(archives));
    extractTableView.reloadData();

    if (paths.isEmpty()) return;
    outputText02.setText(archives.isEmpty()
                             ? Words::tr("There is no archive among them: archives end in \".rar\".")
                             : describeLeftOut(archives, extractFullList.strings(), extractList.strings()));
}

void QuillorentAppDelegate::extractButton02Action()
{
    const QStringList shown = extractFullList.strings();
    QStringList selected;
    for (const int row : extractTableView.selectedRows())
        if (row < shown.size()) selected.append(shown[row]);
    takeOffArchives(selected);
}

void QuillorentAppDelegate::takeOffArchives(const QStringList &paths)
{
    for (const QString &path : paths) {
        removeFrom(extractFullList, path);
        removeFrom(extractList, path);
    }
    extractTableView.reloadData();
}

void QuillorentAppDelegate::extractButton03Action()
{
    extractList.clear();
    extractFullList.clear();
    extractTableView.reloadData();
}

void QuillorentAppDelegate::extractPathButtonAction()
{
    chooseFolder(Words::tr("Choose where the archives are extracted to"), extractPath, u"extractpath"_s);
}
