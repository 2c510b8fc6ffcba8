#pragma once

#include <chrono>

/// Every fixed pause and polling interval of the program.
struct Pauses {
    std::chrono::milliseconds poll{10};              ///< between two looks at the workers and the cancel flag
    std::chrono::milliseconds beforeMeasuring{1000}; ///< so that the progress sheet is seen before it counts
    std::chrono::milliseconds settingsSaved{1000};   ///< so that the sign of saving is seen
    std::chrono::milliseconds profilesSaved{500};
    std::chrono::milliseconds profileLoaded{500};
};

/// The ones in force. Set only by tests, and before anything runs.
Pauses &pauses();
