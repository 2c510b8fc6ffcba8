#pragma once

#include "app/SheetMonitor.h"
#include "runs/Findings.h"

#include <functional>

/// How a run of one kind starts. Made on the main thread, where all that is live is read; the steps run on
/// the run's own thread and read nothing live any more.
struct RunStart {
    RunSheet sheet;

    /// Looks before anything is touched; gives up once `goesOn`, which is to be asked often, says no.
    std::function<Findings(const std::function<bool()> &goesOn)> look;

    /// The run itself. The state is at rest when it returns.
    std::function<void(RunMonitor &)> work;

    bool mayOverwrite = false; ///< whether what is there may be written over was answered before
    outlets::Panel *overwriteQuestion = nullptr; ///< asks for nothing else; none: the panel of concerns does
    std::function<void(const QString &)> showOverwrites{};
};
