#pragma once

#include "extract/ArchiveListing.h"

#include <deque>
#include <memory>
#include <mutex>

/// What archives hold that were looked into, for as long as the program runs; nowhere but in memory. Any
/// thread may call.
class Listings {
public:
    using Listing = std::shared_ptr<const ArchiveListing>;

    void add(Listing listing);
    /// None where the archive was not looked into, or is another one by now. Looks at its files.
    [[nodiscard]] Listing find(const QString &archive) const;

private:
    mutable std::mutex m_mutex;
    std::deque<Listing> m_listings; ///< the newest first; few: each may have a million names
};
