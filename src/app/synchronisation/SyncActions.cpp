#include "app/QuillorentAppDelegate.h"

#include <QCoreApplication>

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
    chooseFolder(Words::tr("Choose the source folder"), syncTextSourcePath, u"rsyncsrc"_qs);
}

void QuillorentAppDelegate::syncButtoDestAction()
{
    chooseFolder(Words::tr("Choose the destination of the synchronisation"), syncTextDestPath,
                 u"rsyncdst"_qs);
}

void QuillorentAppDelegate::syncTextDestPathAction() { store(u"rsyncdst"_qs, syncTextDestPath.text()); }

void QuillorentAppDelegate::syncSelector01Action()
{
    const int row = syncSelector01.selectedIndex();
    if (row == 0 || row == 1) store(u"rsyncmode"_qs, QString::number(row));
}

void QuillorentAppDelegate::checkBoxSync1Action()
{
    currentRecord().setSwitch(u"rsyncdelete1"_qs, checkBoxSync1.isOn());
}

void QuillorentAppDelegate::checkBoxSync2Action()
{
    currentRecord().setSwitch(u"rsyncdelete2"_qs, checkBoxSync2.isOn());
}

void QuillorentAppDelegate::syncCheck01Action()
{
    syncView.setHidden(!syncCheck01.isOn());
    currentRecord().setSwitch(u"isremotesync"_qs, syncCheck01.isOn());
}

void QuillorentAppDelegate::syncCheck02Action()
{
    store(u"remotesyncuser"_qs, syncUser.text());
    store(u"remotesyncserver"_qs, syncServer.text());
    store(u"remotesyncport"_qs, syncPort.text());
}
