#pragma once

#include "Headers.h"

#include <sys/stat.h>

namespace archiver {

/// For utimensat() and futimens(): times that stay as they are where there is none.
[[nodiscard]] inline std::array<timespec, 2> fileTimes(const std::optional<Timestamp> &modified)
{
    timespec time{};
    time.tv_nsec = UTIME_OMIT;
    if (modified) {
        time.tv_sec = modified->seconds;
        time.tv_nsec = modified->nanoseconds;
    }
    return {time, time};
}

} // namespace archiver
