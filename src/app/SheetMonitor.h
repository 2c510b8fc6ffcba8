#pragma once

#include "outlets/Controls.h"
#include "outlets/Panel.h"
#include "outlets/Progress.h"
#include "runs/RunMonitor.h"

class QuillorentAppDelegate;

/// The outlets on which a tab shows how its run goes.
struct RunSheet {
    outlets::Panel &sheet;
    outlets::ProgressBar &bar;
    outlets::Button &cancelButton;
    outlets::TextField &result;                   ///< on the tab: how it ended
    outlets::TextField *whileMeasuring = nullptr; ///< shown until it is known how much there is to do
    outlets::TextField *whileWorking = nullptr;   ///< shown from then on
};

/// Shows a run on its sheet, on the console, and below the tabs.
class SheetMonitor : public RunMonitor {
public:
    SheetMonitor(QuillorentAppDelegate &delegate, const RunSheet &sheet)
        : m_delegate(delegate), m_sheet(sheet)
    {
    }

    /// The sheet alone: for somebody who waits.
    void showSheet();

    void began() override;
    void measured(double bytesToDo) override;
    void advanced(double bytesDone) override { m_sheet.bar.setValue(bytesDone); }
    void logged(const QString &text) override;
    void ended(const QString &summary) override;
    void toolsStillRun(const QStringList &what) override;
    void concluded(const RunRecord &record) override;

private:
    QuillorentAppDelegate &m_delegate;
    const RunSheet m_sheet;
};
