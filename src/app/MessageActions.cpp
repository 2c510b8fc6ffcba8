#include "app/QuillorentAppDelegate.h"

void QuillorentAppDelegate::warn(const QString &text)
{
    warningText01.setText(text);
    warningPanel01.runModal();
}

void QuillorentAppDelegate::warningPanel01Close()
{
    warningPanel01.close();
    window.orderFront();
}

void QuillorentAppDelegate::consolePanel01Action() { consoleTextView01.setText({}); }
