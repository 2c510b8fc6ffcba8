#include "headless/SyncCommand.h"

#include "app/QuillorentAppDelegate.h"
#include "headless/Print.h"
#include "headless/RunCommand.h"

ExitStatus runSync(QuillorentAppDelegate &delegate, const Options &options)
{
    delegate.previewsDeletions = false;
    const PanelAnswers answers(delegate, options.yes);
    return runToEnd(delegate, options, answers, delegate.buttonCancel03, [&] { delegate.buttonLaunch03(); });
}
