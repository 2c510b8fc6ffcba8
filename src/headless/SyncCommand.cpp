#include "headless/SyncCommand.h"

#include "app/QuillorentAppDelegate.h"
#include "headless/Print.h"
#include "headless/RunCommand.h"

ExitStatus runSync(QuillorentAppDelegate &delegate, const Options &options)
{
    const bool deletes = delegate.checkBoxSync1.isOn() || delegate.checkBoxSync2.isOn();
    if (deletes && !options.yes) {
        printError(u"The profile deletes files, at the destination or here. Look at it in the window's "
                   u"preview, then "
                   "say --yes to do it."_qs);
        return NotStarted;
    }
    delegate.asksBeforeDeleting = false;
    const PanelAnswers answers(delegate, options.yes);
    return runToEnd(delegate, options, answers, delegate.buttonCancel03, [&] { delegate.buttonLaunch03(); });
}
