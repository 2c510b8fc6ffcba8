#pragma once

#include "app/DesktopBus.h"

namespace ui {

/// Whether what turns or runs to and fro only to show that something goes on may do so: some people are made
/// ill by it, and say so in the desktop's settings. True as long as nothing else is known.
[[nodiscard]] bool isMotionWanted();

/// Asks the desktop for that, and is told of changes, as long as it lives.
class MotionSettings {
public:
    MotionSettings();
    ~MotionSettings() { m_bus.end(); }
    MotionSettings(const MotionSettings &) = delete;
    MotionSettings &operator=(const MotionSettings &) = delete;

private:
    DesktopBus m_bus{DesktopBus::Kind::Session};
};

} // namespace ui
