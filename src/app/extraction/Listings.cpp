#include "app/extraction/Listings.h"

#include <algorithm>

void Listings::add(Listing listing)
{
    constexpr std::size_t most = 4;
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_listings, [&](const Listing &other) { return other->archive == listing->archive; });
    m_listings.push_front(std::move(listing));
    if (m_listings.size() > most) m_listings.pop_back();
}

Listings::Listing Listings::find(const QString &archive) const
{
    const std::vector<FileIdentity> files = identitiesOf(archive); // which may take its time
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_listings.begin(), m_listings.end(), [&](const Listing &listing) {
        return listing->archive == archive && listing->files == files;
    });
    return found == m_listings.end() || files.empty() ? nullptr : *found;
}
