#include "app/QuillorentAppDelegate.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(synchronisation)
};

void store(const QString &key, const QString &value) { theDelegate().currentRecord().setValue(key, value); }

} // namespace

void QuillorentAppDelegate::syncButton01Action()
{
    const auto chosen = openPanel({.title = Words::tr("Add folders and files to synchronise"),
                                   .canChooseDirectories = true,
                                   .allowsMultipleSelection = true});
    addSyncEntries(chosen.value_or(QStringList()));
}

void QuillorentAppDelegate::addSyncEntries(const QStringList &paths) { m_syncTable.add(paths); }

void QuillorentAppDelegate::syncButton02Action() { m_syncTable.removeSelected(); }

void QuillorentAppDelegate::syncButtoSrcAction()
{
    chooseFolder(Words::tr("Choose the source folder"), syncTextSourcePath, u"rsyncsrc"_s);
}

void QuillorentAppDelegate::syncButtoDestAction()
{
    chooseFolder(Words::tr("Choose the destination of the synchronisation"), syncTextDestPath, u"rsyncdst"_s);
}

void QuillorentAppDelegate::syncTextDestPathAction() { store(u"rsyncdst"_s, syncTextDestPath.text()); }

void QuillorentAppDelegate::syncSelector01Action()
{
    const int row = syncSelector01.selectedIndex();
    if (row == 0 || row == 1) store(u"rsyncmode"_s, QString::number(row));
}

void QuillorentAppDelegate::checkBoxSync1Action()
{
    currentRecord().setSwitch(u"rsyncdelete1"_s, checkBoxSync1.isOn());
}

void QuillorentAppDelegate::checkBoxSync2Action()
{
    currentRecord().setSwitch(u"rsyncdelete2"_s, checkBoxSync2.isOn());
}

void QuillorentAppDelegate::syncCheck01Action()
{
    syncView.setHidden(!syncCheck01.isOn());
    currentRecord().setSwitch(u"isremotesync"_s, syncCheck01.isOn());
}

void QuillorentAppDelegate::syncCheck02Action()
{
    store(u"remotesyncuser"_s, syncUser.text());
    store(u"remotesyncserver"_s, syncServer.text());
    store(u"remotesyncport"_s, syncPort.text());
}
