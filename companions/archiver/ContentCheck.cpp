#include "ContentCheck.h"

#include <zlib.h>

namespace archiver {

void ContentCheck::begin(bool hasHash)
{
    m_size = 0;
    m_crc = 0;
    m_hasHash = hasHash;
    if (hasHash) blake2sp_init(&m_hash, FileHeader::Hash().size());
}

void ContentCheck::add(Bytes bytes, std::uint32_t crc)
{
    const auto joined = [&] {
        return static_cast<std::uint32_t>(crc32_combine(m_crc, crc, static_cast<z_off_t>(bytes.size())));
    };
    m_crc = m_size == 0 ? crc : joined();
    m_size += bytes.size();
    if (m_hasHash) blake2sp_update(&m_hash, bytes.data(), bytes.size());
}

bool ContentCheck::fits(const FileHeader &entry)
{
    if (!entry.sizeUnknown && m_size != entry.unpackedSize) return false;
    if (entry.crc && *entry.crc != m_crc) return false;
    if (!entry.hash) return true;
    FileHeader::Hash hash{};
    return m_hasHash && blake2sp_final(&m_hash, hash.data(), hash.size()) == 0 && hash == *entry.hash;
}

} // namespace archiver
