#include "Extractor.h"

#include "Interrupt.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace archiver {

namespace {

constexpr unsigned windowsReadOnly = 1;

unsigned readUmask()
{
    const mode_t present = umask(0);
    umask(present);
    return present;
}

std::array<timespec, 2> timesOf(const std::optional<Timestamp> &modified)
{
    timespec time{};
    time.tv_nsec = UTIME_OMIT;
    if (modified) {
        time.tv_sec = modified->seconds;
        time.tv_nsec = modified->nanoseconds;
    }
    return {time, time};
}

} // namespace

Extractor::Extractor(Destination &destination, Paths paths, Diagnostics &diagnostics)
    : m_destination(destination), m_paths(paths), m_diagnostics(diagnostics), m_umask(readUmask())
{
}

bool Extractor::cannotCreate(const std::string &name)
{
    if (errno == ELOOP || errno == ENOTDIR)
        return m_diagnostics.report("Cannot create " + printable(name) +
                                    ": a folder on its way is a link or a file in the destination");
    return m_diagnostics.reportSystem("Cannot create " + printable(name));
}

std::optional<std::vector<std::string>> Extractor::place(const std::string &name)
{
    std::optional<std::vector<std::string>> components = Destination::components(name);
    if (!components) {
        m_diagnostics.report("Cannot create " + printable(name) + ": the name leads out of the destination");
        return std::nullopt;
    }
    if (m_paths == Paths::Drop) components->erase(components->begin(), components->end() - 1);
    return components;
}

int Extractor::enter(const std::vector<std::string> &components, const FileHeader &header)
{
    const int folder = m_destination.parentOf(components);
    if (folder < 0) cannotCreate(header.name);
    noteMadeFolders();
    return folder;
}

void Extractor::noteMadeFolders()
{
    for (std::string &path : m_destination.takeMadeFolders())
        m_folders.try_emplace(std::move(path), FolderState{0777u & ~m_umask, std::nullopt});
}

unsigned Extractor::permissions(const FileHeader &header) const
{
    if (header.unixHost) return header.mode & 07777u;
    const unsigned most = header.folder ? 0777 : header.mode & windowsReadOnly ? 0444 : 0666;
    return most & ~m_umask;
}

void Extractor::folder(const FileHeader &header)
{
    if (m_paths == Paths::Drop) return;
    std::optional<std::vector<std::string>> components = place(header.name);
    if (!components) return;
    // One component more than there is, so that the folder itself is made where it is missing.
    components->emplace_back();
    if (enter(*components, header) < 0) return;
    components->pop_back();
    m_folders[Destination::join(*components)] = {permissions(header), header.modified};
}

void Extractor::link(const FileHeader &header)
{
    switch (header.link->kind) {
    case LinkTarget::Kind::Symbolic:
    case LinkTarget::Kind::WindowsSymbolic:
    case LinkTarget::Kind::Junction:
        return symbolicLink(header);
    case LinkTarget::Kind::Hard:
    case LinkTarget::Kind::Copy:
        return copyOfEntry(header);
    }
}

void Extractor::symbolicLink(const FileHeader &header)
{
    const std::optional<std::vector<std::string>> components = place(header.name);
    const int folder = components ? enter(*components, header) : -1;
    if (folder < 0) return;
    std::string target = header.link->path;
    if (header.link->kind != LinkTarget::Kind::Symbolic) std::ranges::replace(target, '\\', '/');
    if (target.find('\0') != std::string::npos) {
        m_diagnostics.report("Cannot create " + printable(header.name) + ": the link's target is damaged");
        return;
    }
    const std::string temporary = temporaryName();
    if (symlinkat(target.c_str(), folder, temporary.c_str()) != 0) {
        cannotCreate(header.name);
        return;
    }
    utimensat(folder, temporary.c_str(), timesOf(header.modified).data(), AT_SYMLINK_NOFOLLOW);
    if (renameat(folder, temporary.c_str(), folder, components->back().c_str()) == 0) return;
    cannotCreate(header.name);
    unlinkat(folder, temporary.c_str(), 0);
}

void Extractor::copyOfEntry(const FileHeader &header)
{
    FileHeader original = header;
    original.name = header.link->path;
    const std::optional<std::vector<std::string>> components = place(original.name);
    const int folder = components ? enter(*components, original) : -1;
    if (folder < 0) return;
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const FileDescriptor from(openat(folder, components->back().c_str(), flags));
    struct stat status {};
    if (!from || fstat(from.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
        m_diagnostics.report("Cannot create " + printable(header.name) + ": its original " +
                             printable(original.name) + " is missing");
        return;
    }
    if (!beginFile(header)) return;
    if (copyContent(from.get()))
        finishFile(header);
    else
        abandonFile();
}

bool Extractor::copyContent(int from)
{
    ByteBuffer buffer(256 << 10);
    for (;;) {
        const ssize_t count = readFully(from, buffer);
        if (count < 0)
            return m_diagnostics.reportSystem("Cannot read the original of " + printable(m_entryName));
        if (count == 0) return true;
        if (interrupted() || !write(Bytes(buffer).first(static_cast<std::size_t>(count)))) return false;
    }
}

ContentSink *Extractor::beginFile(const FileHeader &header)
{
    const std::optional<std::vector<std::string>> components = place(header.name);
    const int folder = components ? enter(*components, header) : -1;
    if (folder < 0) return nullptr;
    m_file = TemporaryFile::create(folder);
    if (!m_file) {
        cannotCreate(header.name);
        return nullptr;
    }
    m_fileName = components->back();
    m_entryName = header.name;
    return this;
}

bool Extractor::write(Bytes bytes)
{
    if (writeFully(m_file.descriptor(), bytes)) return true;
    return m_diagnostics.reportSystem("Cannot write " + printable(m_entryName));
}

void Extractor::finishFile(const FileHeader &header)
{
    // The mode last: changing the owner's own file needs no permission, and set-user-ID bits go when it is
    // written to.
    const bool done = futimens(m_file.descriptor(), timesOf(header.modified).data()) == 0 &&
                      fchmod(m_file.descriptor(), permissions(header)) == 0 && m_file.closeFile() &&
                      m_file.rename(m_fileName);
    if (!done) m_diagnostics.reportSystem("Cannot create " + printable(header.name));
    m_file.discard();
}

void Extractor::abandonFile() { m_file.discard(); }

void Extractor::finish()
{
    // From the deepest up: a folder that its owner may not enter must wait for what is in it.
    using Item = decltype(m_folders)::value_type;
    std::vector<const Item *> deepestFirst;
    for (const Item &item : m_folders)
        deepestFirst.push_back(&item);
    std::ranges::stable_sort(deepestFirst, std::ranges::greater(),
                             [](const Item *item) { return std::ranges::count(item->first, '/'); });
    for (const Item *item : deepestFirst) {
        const auto &[path, state] = *item;
        std::vector<std::string> components = *Destination::components(path);
        const int parent = m_destination.parentOf(components);
        const FileDescriptor folder(parent < 0 ? -1
                                               : openat(parent, components.back().c_str(),
                                                        O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        const bool done = folder && futimens(folder.get(), timesOf(state.modified).data()) == 0 &&
                          fchmod(folder.get(), state.mode) == 0;
        if (!done) m_diagnostics.reportSystem("Cannot set the attributes of folder " + printable(path));
    }
    m_folders.clear();
}

} // namespace archiver
