#include "app/QuillorentAppDelegate.h"

#include <QCoreApplication>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(app)
};

} // namespace

void QuillorentAppDelegate::warn(const QString &text)
{
    warningText01.setText(text);
    warningPanel01.runModal();
}

void QuillorentAppDelegate::closeSheet(outlets::Panel &sheet)
{
    sheet.close();
    window.orderFront();
}

void QuillorentAppDelegate::chooseFolder(const QString &title, outlets::TextField &field, const QString &key)
{
    const auto chosen = openPanel({.title = title,
                                   .canChooseFiles = false,
                                   .canChooseDirectories = true,
                                   .canCreateDirectories = true,
                                   .directory = field.text()});
    if (!chosen || chosen->isEmpty()) return;
    field.setText(chosen->first());
    currentRecord().setValue(key, chosen->first());
}

void QuillorentAppDelegate::warningPanel01Close() { closeSheet(warningPanel01); }

void QuillorentAppDelegate::tabViewDidSelectTabViewItem()
{
    const int missing = compliantBase() - compliant();
    if (missing == 0 || verifications > 0) return;
    noPathText01.setText(Words::tr("%1 of %2 programs that do the work are missing or wrong. The Tools tab "
                                   "shows which: choose the right program there, or install it.")
                             .arg(QString::number(missing), QString::number(compliantBase())));
    noPathPanel01.orderFront();
}

void QuillorentAppDelegate::noPathPanel01Close() { noPathPanel01.orderOut(); }

void QuillorentAppDelegate::consolePanel01Action() { consoleTextView01.setText({}); }
