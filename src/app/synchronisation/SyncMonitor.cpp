#include "app/synchronisation/SyncMonitor.h"

#include "app/QuillorentAppDelegate.h"
#include "runs/Clock.h"

#include <QCoreApplication>

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(synchronisation)
};

} // namespace

RunSheet syncSheet(QuillorentAppDelegate &delegate)
{
    return {delegate.progressPanel03, delegate.progress03progressIndicator01, delegate.buttonCancel03,
            delegate.outputText03};
}

void SyncDisplay::begin(const QString &what)
{
    m_delegate.progress03progressLabel01.setText(what);
    m_delegate.progress03progressLabel02.setText(Words::tr("Time: %1").arg(clockText({})));
}

void SyncDisplay::listed(const QString &listFile) { m_delegate.tempFile.set(listFile); }

void SyncDisplay::sawFigures(const QString &text) { m_delegate.progress03progressLabel02.setText(text); }

void SyncDisplay::failed(const QString &text)
{
    m_delegate.consoleTextView01.setText({});
    // Who cancelled knows why rsync complains.
    m_delegate.consoleTextView01.append(text);
}
