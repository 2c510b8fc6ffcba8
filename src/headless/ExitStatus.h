#pragma once

/// How `quillorent-run` ends. Wrong usage has the number of sysexits.h.
enum ExitStatus { Done = 0, RunFailed = 1, NotStarted = 2, WrongUsage = 64 };
