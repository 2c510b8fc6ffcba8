#include "app/QuillorentAppDelegate.h"
#include "app/profiles/SavedFile.h"
#include "runs/Pauses.h"
#include "tools/Threads.h"

#include <QCoreApplication>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(profiles)
};

} // namespace

// What is saved before the program ends, while there is still a window that can tell of a failure.

bool QuillorentAppDelegate::isUnsaved(const SavedFile &file) const
{
    return !file.isSaved((this->*file.content)());
}

void QuillorentAppDelegate::saveForQuitting()
{
    if (m_savesForQuitting.exchange(true)) return;
    m_leavesUnsaved = false;
    detachThread(u"save-and-quit"_s, [this] {
        m_mayQuit = saveOrAsk();
        m_savesForQuitting = false;
    });
}

bool QuillorentAppDelegate::saveOrAsk()
{
    QStringList failures;
    while (true) {
        const auto saved = saveChanged();
        if (!saved) return false;
        if (saved->isEmpty()) return true;
        failures += *saved;
        quitText01.setText(failures.join(u"\n\n"_s));
        m_quitChoice = QuitChoice::Stay;
        quitPanel01.runModal();
        failures.clear();
        if (m_quitChoice == QuitChoice::Copy) failures = saveCopies();
        m_leavesUnsaved =
            m_quitChoice == QuitChoice::Leave || (m_quitChoice == QuitChoice::Copy && failures.isEmpty());
        if (m_leavesUnsaved || m_quitChoice == QuitChoice::Stay) return m_leavesUnsaved;
    }
}

std::optional<QStringList> QuillorentAppDelegate::saveChanged()
{
    QStringList failures;
    for (const auto &[file, sign, pause] :
         {std::tuple{&profilesToSave(), &indicator03, pauses().profilesSaved},
          {&settingsToSave(), &indicator01, pauses().settingsSaved}}) {
        if (!isUnsaved(*file)) continue;
        sign->startAnimation();
        const auto failure = save(*file);
        std::this_thread::sleep_for(pause);
        sign->stopAnimation();
        if (!failure) return std::nullopt;
        if (!failure->isEmpty()) failures.append(*failure);
    }
    return failures;
}

QStringList QuillorentAppDelegate::saveCopies()
{
    QStringList failures;
    for (const SavedFile *file : {&profilesToSave(), &settingsToSave()}) {
        if (!isUnsaved(*file)) continue;
        const QString reason = file->saveCopy((this->*file->content)(), m_copyFolder());
        if (!reason.isEmpty()) failures.append(Words::tr("No copy could be saved either:\n%1").arg(reason));
    }
    return failures;
}

void QuillorentAppDelegate::answerQuitting(QuitChoice choice)
{
    m_quitChoice = choice;
    closeSheet(quitPanel01);
}

void QuillorentAppDelegate::quitPanel01Again() { answerQuitting(QuitChoice::Again); }

void QuillorentAppDelegate::quitPanel01Copy()
{
    const auto chosen = openPanel({.title = Words::tr("Choose a folder for the copy"),
                                   .canChooseFiles = false,
                                   .canChooseDirectories = true,
                                   .canCreateDirectories = true});
    if (!chosen || chosen->isEmpty()) return;
    m_copyFolder.set(chosen->first());
    answerQuitting(QuitChoice::Copy);
}

void QuillorentAppDelegate::quitPanel01Leave() { answerQuitting(QuitChoice::Leave); }

void QuillorentAppDelegate::quitPanel01Stay() { answerQuitting(QuitChoice::Stay); }
