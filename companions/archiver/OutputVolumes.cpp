#include "OutputVolumes.h"

#include "SetReplacement.h"
#include "VolumeSource.h"

#include <fcntl.h>
#include <limits>
#include <sys/resource.h>

namespace archiver {

namespace {

constexpr std::size_t bufferSize = 512 << 10;
constexpr std::size_t worthNoCopy = 128 << 10;

/// The written volumes, read through the descriptors that they were written through; messages name the
/// archive.
class WrittenVolumes final : public VolumeSource {
public:
    WrittenVolumes(std::vector<base::StagedFile> &files, std::string archive)
        : m_files(files), m_archive(std::move(archive))
    {
    }
    std::optional<FileSource> open(std::size_t index) override
    {
        // Those with names were too many to be open together.
        if (index > 0 && !m_files[index - 1].passingName().empty() && !m_files[index - 1].park())
            return std::nullopt;
        errno = ENOENT;
        struct stat status {};
        if (index >= m_files.size() || !m_files[index].unpark() ||
            fstat(m_files[index].descriptor(), &status) != 0)
            return std::nullopt;
        return FileSource{m_files[index].descriptor(), static_cast<std::uint64_t>(status.st_size)};
    }
    [[nodiscard]] std::string name(std::size_t) const override { return m_archive; }

private:
    std::vector<base::StagedFile> &m_files;
    std::string m_archive;
};

/// How many volumes may be open at a time: half of what the system allows leaves enough for the sources.
std::size_t mostOpenVolumes()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return 16;
    return static_cast<std::size_t>(std::max<rlim_t>(limit.rlim_cur / 2, 1));
}

} // namespace

OutputVolumes::OutputVolumes(const std::string &archivePath, std::optional<std::uint64_t> volumeSize,
                             Diagnostics &diagnostics)
    : m_path(archivePath)
    , m_name(base::nameIn(archivePath))
    , m_volumeSize(volumeSize)
    , m_diagnostics(diagnostics)
    , m_passingNames(passingNamesOf(withoutExtension(m_name)))
    , m_mostOpen(mostOpenVolumes())
    , m_buffer(bufferSize)
{
}

bool OutputVolumes::begin()
{
    m_folder = base::openFolderOf(m_path);
    if (!m_folder || fstat(m_folder.get(), &m_folderStatus) != 0) return cannotCreate(m_path);
    // Found out now rather than after all the work.
    if (m_name.empty() || isFolder(m_name)) return errno = EISDIR, cannotCreate(m_path);
    if (!finishReplacement(m_path, m_diagnostics)) return false;
    base::removeLeftovers(m_folder.get(), m_passingNames);
    return beginVolume();
}

bool OutputVolumes::isFolder(const std::string &name) const
{
    struct stat status {};
    return fstatat(m_folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISDIR(status.st_mode);
}

bool OutputVolumes::beginVolume()
{
    base::StagedFile file =
        base::StagedFile::create(m_folder.get(), m_passingNames, static_cast<unsigned>(m_files.size()));
    if (!file) return cannotCreate(m_path);
    m_files.push_back(std::move(file));
    m_position = 0;
    ByteBuffer start(signature.begin(), signature.end());
    presentFormat.putMain(start, {limited(), m_files.size() - 1, m_solid});
    if (!append(start)) return false;
    m_dataStart = m_position;
    return true;
}

bool OutputVolumes::append(Bytes bytes)
{
    if (bytes.size() >= worthNoCopy) {
        if (!flush()) return false;
        m_position += bytes.size();
        return m_writer.writeAtOnce(m_files.back().descriptor(), bytes) || cannotWrite();
    }
    while (!bytes.empty()) {
        const std::span<std::uint8_t> space = buffer();
        const std::size_t count = std::min(space.size(), bytes.size());
        std::copy_n(bytes.begin(), count, space.begin());
        commit(count);
        bytes = bytes.subspan(count);
        if (m_used == m_buffer.size() && !flush()) return false;
    }
    return true;
}

std::unique_ptr<VolumeSource> OutputVolumes::written()
{
    return std::make_unique<WrittenVolumes>(m_files, m_path);
}

bool OutputVolumes::owns(const struct stat &folder, const std::string &name) const
{
    if (!base::isSame(folder, m_folderStatus)) return false;
    return name == m_name || m_passingNames.include(name) || (limited() && isFileOfArchive(name, m_name));
}

bool OutputVolumes::publish(const std::optional<Timestamp> &time)
{
    const std::vector<std::string> names = finalNames(m_name, m_files.size());
    for (const std::string &name : names)
        if (isFolder(name)) return errno = EISDIR, cannotCreate(name);
    // Before the names, or a power cut would leave an empty archive where the one before is gone.
    for (base::StagedFile &file : m_files)
        if (!complete(file, time)) return false;
    const bool areSeveral =
        names.size() > 1 || (limited() && !filesOfArchive(m_folder.get(), m_name, names).empty());
    if (areSeveral) return replaceSet(m_folder.get(), m_name, m_files, m_diagnostics);
    if (!m_files.front().publish(m_name, m_passingNames)) return cannotCreate(m_name);
    return base::syncToDisk(m_folder.get()) || cannotWrite();
}

} // namespace archiver
