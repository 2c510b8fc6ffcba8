#include "app/QuillorentAppDelegate.h"
#include "app/profiles/SavedFile.h"
#include "app/tools/Compliance.h"
#include "runs/Pauses.h"
#include "settings/Store.h"
#include "tools/Threads.h"

#include <QCoreApplication>
#include <QLocale>
#include <thread>

using namespace Qt::StringLiterals;

using quillorentLibrary::InConflict;
using quillorentLibrary::Saved;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(profiles)
};

QString quoted(const QStringList &names)
{
    QStringList all;
    for (const QString &name : names)
        all.append(Words::tr("“%1”").arg(name));
    return QLocale().createSeparatedList(all);
}

QString describeConflict(const SavedFile &file, const QStringList &names)
{
    return Words::tr("Another window or program has changed the file of the %1 since it was read here, and "
                     "both of you have changed %2.\n\nWhichever you choose, the other one is kept beside the "
                     "file. What only one of you has changed is saved in any case.")
        .arg(file.name, quoted(names));
}

/// Of some saves, what is to be told.
QStringList failuresOf(const std::vector<std::optional<QString>> &saves)
{
    QStringList failures;
    for (const std::optional<QString> &failure : saves)
        if (failure && !failure->isEmpty()) failures.append(*failure);
    return failures;
}

} // namespace

// Saving may wait for a busy disk, and then waits so that its sign is seen: neither is the window's business,
// so both happen on a thread of their own.

std::optional<QString> QuillorentAppDelegate::save(const SavedFile &file)
{
    const plist::Dictionary content = (this->*file.content)();
    if (!content)
        return Words::tr("The %1 can't be saved, for their file could not be read:\n%2\n\nRepair it, or move "
                         "it away, and start the program again.")
            .arg(file.name, file.whyUnread());

    Saved saved = file.save(content, m_endsUnasked ? InConflict::KeepMine : InConflict::Ask);
    if (!saved.conflicts.isEmpty() && !m_endsUnasked) {
        const auto choice = askInConflict(describeConflict(file, saved.conflicts));
        if (!choice) return std::nullopt;
        saved = file.save(content, *choice);
    }
    QStringList notices = quillorentLibrary::takeNotices();
    if (saved.isDone() && !saved.takenOver.isEmpty())
        notices.append(Words::tr("Another window or program has changed %1: that is taken over.")
                           .arg(quoted(saved.takenOver)));
    if (!notices.isEmpty()) showFilesAgain();
    tellOfFiles(notices);

    if (saved.isDone()) return QString();
    return Words::tr("The %1 could not be saved:\n%2\n\nWhat you changed is kept only as long as the program "
                     "runs. Make room, or make the folder writable, and save again.")
        .arg(file.name, saved.reason);
}

std::optional<InConflict> QuillorentAppDelegate::askInConflict(const QString &text)
{
    const std::lock_guard oneQuestion(m_saveQuestions);
    m_conflictChoice.set(std::nullopt);
    conflictText01.setText(text);
    conflictPanel01.runModal();
    return m_endsUnasked ? InConflict::KeepMine : m_conflictChoice();
}

void QuillorentAppDelegate::answerConflict(std::optional<InConflict> choice)
{
    m_conflictChoice.set(choice);
    closeSheet(conflictPanel01);
}

void QuillorentAppDelegate::conflictPanel01Mine() { answerConflict(InConflict::KeepMine); }

void QuillorentAppDelegate::conflictPanel01Theirs() { answerConflict(InConflict::TakeTheirs); }

void QuillorentAppDelegate::conflictPanel01Stop() { answerConflict(std::nullopt); }

// The record in use may be another one now, or none.
void QuillorentAppDelegate::showFilesAgain()
{
    const QStringList names = listPlist().keys();
    refreshProfileCombo();
    if (names.contains(currentProfile())) {
        profileCombo01.selectTitle(currentProfile());
        const int source = passCombo01.selectedIndex();
        applyRecord(currentRecord());
        if (passCombo01.selectedIndex() != source) passCombo01Action();
        listTableView.reloadData();
        syncTableView.reloadData();
    } else {
        setterCurrentProfile(names.value(0));
    }
    showSwitches();
    pathTableView.reloadData();
}

void QuillorentAppDelegate::tellOfFiles(const QStringList &notices)
{
    if (notices.isEmpty()) return;
    const std::lock_guard oneAfterAnother(m_fileNotices);
    const bool isShown = settingsPanel01.place() != outlets::Panel::Place::Hidden;
    QStringList shown = isShown ? settingsText01.text().split(u"\n\n"_s) : QStringList();
    shown.append(notices);
    shown.removeDuplicates();
    settingsText01.setText(shown.join(u"\n\n"_s));
    settingsPanel01.orderFront();
}

void QuillorentAppDelegate::settingsPanel01Close() { settingsPanel01.orderOut(); }

/// Tells whoever pressed a button that what they think is saved is not. Of several that tell at once, each is
/// read before the next.
void QuillorentAppDelegate::tellUnlessSaved(const QStringList &failures)
{
    if (failures.isEmpty()) return;
    const std::lock_guard oneAfterAnother(m_saveQuestions);
    saveText01.setText(failures.join(u"\n\n"_s));
    savePanel01.runModal();
}

void QuillorentAppDelegate::savePanel01Close() { closeSheet(savePanel01); }

void QuillorentAppDelegate::saveSettings1Action()
{
    indicator01.startAnimation();
    detachThread(u"save-settings"_s, [this] {
        const QStringList failures = failuresOf({save(settingsToSave())});
        std::this_thread::sleep_for(pauses().settingsSaved);
        quillorentLibrary::compliance();
        indicator01.stopAnimation();
        tellUnlessSaved(failures);
    });
}

void QuillorentAppDelegate::profileButton01Action()
{
    indicator02.startAnimation();
    indicator03.startAnimation();
    detachThread(u"save-profiles"_s, [this] {
        const QStringList failures = failuresOf({save(profilesToSave())});
        std::this_thread::sleep_for(pauses().profilesSaved);
        indicator02.stopAnimation();
        indicator03.stopAnimation();
        tellUnlessSaved(failures);
    });
}

void QuillorentAppDelegate::setterDefaultProfile()
{
    indicator02.startAnimation();
    indicator03.startAnimation();
    configPlist().dictionary(u"resources"_s).setValue(u"selectedprofile"_s, currentProfile());
    detachThread(u"save-both"_s, [this] {
        const QStringList failures = failuresOf({save(profilesToSave()), save(settingsToSave())});
        std::this_thread::sleep_for(pauses().profilesSaved);
        indicator02.stopAnimation();
        indicator03.stopAnimation();
        tellUnlessSaved(failures);
    });
}
