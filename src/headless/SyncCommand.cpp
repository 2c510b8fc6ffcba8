#include "headless/SyncCommand.h"

#include "app/QuillorentAppDelegate.h"
#include "headless/Print.h"
#include "headless/RunCommand.h"

ExitStatus runSync(QuillorentAppDelegate &delegate, const Options &options)
{
    const PanelAnswers answers(delegate, options.yes);
    const ExitStatus status =
        runToEnd(delegate, options, answers, delegate.buttonCancel03, [&] { delegate.buttonLaunch03(); });
    if (status != NotStarted) printError(delegate.outputText03.text());
    return status;
}
