#pragma once

#include "Secret.h"
#include "ToolRun.h"

/// Runs the tool and judges the run: its exit status has to be 0 and, unless `run.mayPrint`, it must have
/// printed nothing. Only then is there a result file; in every other case something was printed that tells
/// why. `password` is wiped as soon as it is in the pipe to the tool. Returns the exit status for the
/// program: 0, or else the tool's own, or 1. Where a signal asked to stop, the program ends by that signal
/// instead, once the tool is gone and nothing is left behind.
[[nodiscard]] int runTool(const std::string &tool, const ToolRun &run, Secret &password);
