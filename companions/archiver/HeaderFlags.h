#pragma once

#include <cstdint>

// The bits and numbers of the headers' fields.

namespace archiver {

namespace headerflag {
inline constexpr std::uint64_t extra = 0x01;
inline constexpr std::uint64_t data = 0x02;
inline constexpr std::uint64_t continuesBefore = 0x08;
inline constexpr std::uint64_t continuesAfter = 0x10;
} // namespace headerflag

namespace mainflag {
inline constexpr std::uint64_t volume = 0x01;
inline constexpr std::uint64_t number = 0x02;
inline constexpr std::uint64_t solid = 0x04;
} // namespace mainflag

namespace fileflag {
inline constexpr std::uint64_t folder = 0x01;
inline constexpr std::uint64_t time = 0x02;
inline constexpr std::uint64_t crc = 0x04;
inline constexpr std::uint64_t sizeUnknown = 0x08;
} // namespace fileflag

namespace extrarecord {
inline constexpr std::uint64_t encryption = 1;
inline constexpr std::uint64_t hash = 2;
inline constexpr std::uint64_t times = 3;
inline constexpr std::uint64_t link = 5;
} // namespace extrarecord

namespace timeflag {
inline constexpr std::uint64_t unixFormat = 0x01;
inline constexpr std::uint64_t modified = 0x02;
inline constexpr std::uint64_t changed = 0x04;
inline constexpr std::uint64_t accessed = 0x08;
inline constexpr std::uint64_t nanoseconds = 0x10;
} // namespace timeflag

/// Seconds from 1601, where Windows times start (in steps of 100 ns), to 1970.
inline constexpr std::int64_t windowsEpoch = 11'644'473'600;
inline constexpr std::int64_t windowsTicks = 10'000'000; ///< a second

} // namespace archiver
