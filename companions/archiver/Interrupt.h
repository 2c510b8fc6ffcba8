#pragma once

namespace archiver {

/// From here on SIGTERM, SIGINT and SIGHUP no longer end the program at once: interrupted() becomes true
/// instead, and the work in hand stops and removes what it has not finished.
void catchInterrupts();

[[nodiscard]] bool interrupted();

/// Ends the program with the signal that was caught, so that its parent learns of it; returns where there was
/// none.
void endByCaughtSignal();

} // namespace archiver
