#pragma once

namespace base {

/// For programs that hold secrets: no other program of the user's can look into this one's memory, and it
/// leaves no image of it when it crashes. One that a debugger has started stays open to it: who does that
/// could have the program load anything.
void closeMemory();

} // namespace base
