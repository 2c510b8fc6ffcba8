#pragma once

#include "runs/RunRecord.h"

#include <QString>
#include <QStringList>

/// Where a run tells how it goes; counters are in the run's state. Called on the run's thread and on those of
/// its workers; nothing that is done here may take long.
class RunMonitor {
public:
    RunMonitor() = default;
    virtual ~RunMonitor() = default;
    RunMonitor(const RunMonitor &) = delete;
    RunMonitor &operator=(const RunMonitor &) = delete;

    virtual void began() = 0;                    ///< how much there is to do is not known yet
    virtual void measured(double bytesToDo) = 0; ///< now it is
    virtual void advanced(double bytesDone) = 0;
    virtual void logged(const QString &text) = 0;   ///< what tools said, of an item that failed
    virtual void ended(const QString &summary) = 0; ///< nobody waits any more, though tools may still run
    virtual void toolsStillRun(const QStringList &what) = 0; ///< after that; empty where none does any more
    virtual void concluded(const RunRecord &record) = 0;     ///< nothing comes after it
};
