#pragma once

#include "app/DesktopBus.h"

#include <QString>
#include <vector>

/// Keeps the machine from going to sleep while it lives, and has an attempt to shut it down say why that
/// should wait. Where nothing manages the machine's sleep, nothing happens.
class StayAwake {
public:
    explicit StayAwake(const QString &why);
    ~StayAwake();
    StayAwake(const StayAwake &) = delete;
    StayAwake &operator=(const StayAwake &) = delete;

private:
    std::vector<int> m_descriptors; ///< the hold lasts for as long as they are open
    DesktopBus m_bus{DesktopBus::Kind::System};
};
