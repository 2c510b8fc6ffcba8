#include "VolumeSource.h"

#include "VolumeNames.h"

namespace archiver {

std::unique_ptr<ByteSource> VolumeFiles::open(std::size_t index) { return FileSource::open(name(index)); }

std::string VolumeFiles::name(std::size_t index) const
{
    while (m_paths.size() <= index)
        m_paths.push_back(nextVolumePath(m_paths.back()));
    return m_paths[index];
}

} // namespace archiver
