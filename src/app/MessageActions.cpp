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

void QuillorentAppDelegate::tabViewDidSelectTabViewItem()
{
    const int missing = compliantBase() - compliant();
    if (missing == 0 || verifications > 0) return;
    noPathText01.setText(
        u"%1 of %2 programs that do the work are missing or wrong. The Tools tab shows which: choose the "
        "right program there, or install it."_qs.arg(QString::number(missing),
                                                     QString::number(compliantBase())));
    noPathPanel01.orderFront();
}

void QuillorentAppDelegate::noPathPanel01Close() { noPathPanel01.orderOut(); }

void QuillorentAppDelegate::consolePanel01Action() { consoleTextView01.setText({}); }
