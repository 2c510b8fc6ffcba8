#pragma once

#include "runs/RunRecord.h"

#include <QString>
#include <QStringList>

/// Where a run tells how it goes; counters are in the run's state. Called on the run's thread and on those of
/// its workers; nothing that is done here may take long. What nobody wants to know is not to be overridden.
class RunMonitor {
public:
    RunMonitor() = default;
    virtual ~RunMonitor() = default;
    RunMonitor(const RunMonitor &) = delete;
    RunMonitor &operator=(const RunMonitor &) = delete;

    virtual void began() {}                        ///< how much there is to do is not known yet
    virtual void measured(double /*bytesToDo*/) {} ///< now it is
    virtual void advanced(double /*bytesDone*/) {}
    virtual void logged(const QString & /*text*/) {}   ///< what tools said, of an item that failed
    virtual void ended(const QString & /*summary*/) {} ///< nobody waits any more, though tools may still run
    /// After that; empty where none does any more.
    virtual void toolsStillRun(const QStringList & /*what*/) {}
    virtual void concluded(const RunRecord & /*record*/) {} ///< nothing comes after it
};
