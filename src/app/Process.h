#pragma once

/// What every front end does before anything else: nobody looks into the program's memory but a debugger that
/// has started it, files that tools write on the way are the user's alone,
/// and no tool can wait for an answer, neither on the program's own input nor in a window that ssh opens.
/// Keeps standard input where `keepInput` says that it is still read; then detachInput() follows.
void prepareProcess(bool keepInput = false);

/// Standard input reads nothing from now on.
void detachInput();
