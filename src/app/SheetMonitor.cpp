#include "app/SheetMonitor.h"

#include "app/QuillorentAppDelegate.h"
#include "extract/ChosenPaths.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(app)
};

void setHidden(outlets::TextField *label, bool hidden)
{
    if (label) label->setHidden(hidden);
}

/// The deepest that all of what was brought back shares.
QString folderOfContents(const RunRecord &record)
{
    QString folder;
    for (const ItemRecord &item : record.items)
        if (!item.contents.isEmpty())
            folder = folder.isEmpty() ? item.contents : commonFolder(folder, item.contents);
    return folder.isEmpty() ? record.folder : folder;
}

} // namespace

void SheetMonitor::showSheet()
{
    m_sheet.cancelButton.setTitle(QString::fromUtf8(QT_TRANSLATE_NOOP("outlets", "Cancel")));
    m_sheet.sheet.beginSheet();
    m_sheet.bar.setValue(0);
    m_sheet.bar.setIndeterminate(true);
    m_sheet.bar.startAnimation();
    setHidden(m_sheet.whileWorking, true);
    setHidden(m_sheet.whileMeasuring, false);
}

void SheetMonitor::began()
{
    m_delegate.consoleTextView01.setText({});
    m_delegate.lastRecord.set({});
    m_sheet.result.setText({});
    // Whoever has cancelled by now keeps the title that says so.
    const QString title = m_sheet.cancelButton.title();
    showSheet();
    if (m_delegate.isCancelledByUser()) m_sheet.cancelButton.setTitle(title);
}

void SheetMonitor::measured(double bytesToDo)
{
    m_sheet.bar.setIndeterminate(false);
    m_sheet.bar.setMaximum(bytesToDo);
    setHidden(m_sheet.whileMeasuring, true);
    setHidden(m_sheet.whileWorking, false);
}

void SheetMonitor::logged(const QString &text) { m_delegate.consoleTextView01.append(text); }

void SheetMonitor::ended(const QString &summary)
{
    m_sheet.bar.stopAnimation();
    m_sheet.result.setText(summary);
    m_sheet.sheet.close();
    if (!m_delegate.consoleTextView01.text().isEmpty()) m_delegate.consolePanel01.orderFront();
}

void SheetMonitor::toolsStillRun(const QStringList &what)
{
    m_delegate.toolsText01.setText(what.isEmpty() ? QString()
                                                  : Words::tr("Still at work: %1.").arg(what.join(u", "_s)));
    m_delegate.toolsText01.setHidden(what.isEmpty());
    m_delegate.toolsCancel01.setHidden(what.isEmpty());
}

void SheetMonitor::concluded(const RunRecord &record)
{
    if (record.kind == u"extract" && record.outcome == Outcome::Succeeded)
        m_delegate.openFolderButton.setAlternateTitle(folderOfContents(record));
    m_sheet.result.setText(record.summary);
    m_delegate.lastRecord.set(record);
    m_delegate.showLeftInClear();
}
