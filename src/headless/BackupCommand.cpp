#include "headless/BackupCommand.h"

#include "app/QuillorentAppDelegate.h"
#include "headless/Print.h"
#include "headless/RunCommand.h"

#include <QCoreApplication>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(headless)
};

} // namespace

ExitStatus runBackup(QuillorentAppDelegate &delegate, const Options &options)
{
    if (!options.passwordFile.isEmpty() && delegate.passCombo01.selectedIndex() == PasswordTab::Certificate) {
        printError(Words::tr("The profile encrypts for a certificate; a password does not go with it."));
        return NotStarted;
    }
    if (!supplyPassword(delegate, options.passwordFile, Asking::Twice)) return NotStarted;

    PanelAnswers answers(delegate, options.yes);
    answers.answerQuestion(
        delegate.warningPanel03, [&] { return delegate.overwritesText02.text(); },
        [&] { delegate.buttonLaunch01b(); }, [&] { delegate.buttonLaunch01Stop(); });
    return runToEnd(delegate, options, answers, delegate.buttonCancel01, [&] { delegate.buttonLaunch01(); });
}
