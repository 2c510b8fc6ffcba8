#include "Extractor.h"

#include "StagedFile.h"

#include <algorithm>
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

} // namespace

/// What one thread makes.
class Extractor::Thread final : public EntryReceiver {
public:
    Thread(Extractor &all, Diagnostics &diagnostics)
        : m_all(all), m_destination(all.m_destination), m_diagnostics(diagnostics)
    {
    }

    void folder(const FileHeader &header) override
    {
        if (m_all.m_paths == Paths::Drop) return;
        std::optional<std::vector<std::string>> components = way(header.name);
        if (!components) return;
        // One component more than there is, so that the folder itself is made where it is missing.
        components->emplace_back();
        if (enter(*components, header.name) < 0) return;
        components->pop_back();
        const std::lock_guard lock(m_all.m_mutex);
        m_all.m_folders.set(*components, {permissions(header), header.modified});
    }

    void link(const FileHeader &header) override
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

    bool beginFile(const FileHeader &header) override
    {
        const Spot spot = find(header.name);
        if (spot.folder < 0) return false;
        m_file = base::StagedFile::create(spot.folder, {".rar", spot.name});
        if (!m_file) return cannotCreate(header.name);
        m_fileName = spot.name;
        m_entryName = header.name;
        return true;
    }

    bool write(Bytes bytes) override
    {
        if (base::writeFully(m_file.descriptor(), bytes)) return true;
        return m_diagnostics.reportSystem("Cannot write " + printable(m_entryName));
    }

    void finishFile(const FileHeader &header) override
    {
        // Some network file systems tell when a file is closed that it couldn't be written; those know names
        // only.
        const bool done = futimens(m_file.descriptor(), fileTimes(header.modified).data()) == 0 &&
                          fchmod(m_file.descriptor(), permissions(header)) == 0 &&
                          (m_file.passingName().empty() || m_file.park()) &&
                          m_file.publish(m_fileName, {".rar", m_fileName});
        if (!done) m_diagnostics.reportSystem("Cannot create " + printable(header.name));
        m_file.discard();
    }

    void abandonFile() override { m_file.discard(); }

    [[nodiscard]] std::string place(const FileHeader &header) const override
    {
        const std::optional<std::vector<std::string>> components = Destination::components(header.name);
        if (!components) return {};
        if (m_all.m_paths == Paths::Drop) return components->back();
        std::string path;
        for (const std::string &component : *components)
            path += (path.empty() ? "" : "/") + component;
        return path;
    }

private:
    /// Where an entry goes: its folder, valid until the next one is looked for, and its name in there.
    struct Spot {
        int folder = -1; ///< -1: there is none, which has been reported
        std::string name;
    };

    Spot find(const std::string &name)
    {
        const std::optional<std::vector<std::string>> components = way(name);
        return components ? Spot{enter(*components, name), components->back()} : Spot();
    }

    std::optional<std::vector<std::string>> way(const std::string &name)
    {
        std::optional<std::vector<std::string>> components = Destination::components(name);
        if (!components) {
            m_diagnostics.report("Cannot create " + printable(name) +
                                 ": the name leads out of the destination");
            return std::nullopt;
        }
        if (m_all.m_paths == Paths::Drop) components->erase(components->begin(), components->end() - 1);
        return components;
    }

    int enter(const std::vector<std::string> &components, const std::string &name)
    {
        const int folder = m_destination.parentOf(components);
        if (folder < 0) cannotCreate(name);
        const std::size_t depth = m_destination.depth();
        if (m_destination.made() > 0) {
            const std::lock_guard lock(m_all.m_mutex);
            m_all.m_folders.setMissing(std::span(components).first(depth), depth - m_destination.made(),
                                       {0777u & ~m_all.m_umask, std::nullopt});
        }
        return folder;
    }

    void symbolicLink(const FileHeader &header)
    {
        const auto [folder, name] = find(header.name);
        if (folder < 0) return;
        std::string target = header.link->path;
        if (header.link->kind != LinkTarget::Kind::Symbolic) std::ranges::replace(target, '\\', '/');
        if (target.find('\0') != std::string::npos) {
            m_diagnostics.report("Cannot create " + printable(header.name) +
                                 ": the link's target is damaged");
            return;
        }
        const base::PassingNames names(".rar", name);
        std::string made = name;
        bool isMade = symlinkat(target.c_str(), folder, made.c_str()) == 0;
        for (unsigned number = 0; !isMade && errno == EEXIST && number < 1000; ++number) {
            made = names.name(number);
            isMade = symlinkat(target.c_str(), folder, made.c_str()) == 0;
        }
        if (!isMade) {
            cannotCreate(header.name);
            return;
        }
        utimensat(folder, made.c_str(), fileTimes(header.modified).data(), AT_SYMLINK_NOFOLLOW);
        if (made == name || renameat(folder, made.c_str(), folder, name.c_str()) == 0) return;
        cannotCreate(header.name);
        unlinkat(folder, made.c_str(), 0);
    }

    void copyOfEntry(const FileHeader &header)
    {
        const std::string &original = header.link->path;
        const Spot spot = find(original);
        if (spot.folder < 0) return;
        constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
        const base::FileDescriptor from(openat(spot.folder, spot.name.c_str(), flags));
        struct stat status {};
        if (!from || fstat(from.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
            m_diagnostics.report("Cannot create " + printable(header.name) + ": its original " +
                                 printable(original) + " is missing");
            return;
        }
        if (!beginFile(header)) return;
        copyContent(from.get()) ? finishFile(header) : abandonFile();
    }

    bool copyContent(int from)
    {
        ByteBuffer buffer(256 << 10);
        for (;;) {
            const ssize_t count = base::readFully(from, buffer);
            if (count < 0)
                return m_diagnostics.reportSystem("Cannot read the original of " + printable(m_entryName));
            if (count == 0) return true;
            if (interrupted() || !write(Bytes(buffer).first(static_cast<std::size_t>(count)))) return false;
        }
    }

    unsigned permissions(const FileHeader &header) const
    {
        // Archives don't say whose a file was. Set-user-ID and set-group-ID would turn it into the right to
        // act as whoever unpacks it.
        constexpr unsigned withoutIdentities = 01777;
        if (header.unixHost) return header.mode & withoutIdentities;
        const unsigned most = header.folder ? 0777 : header.mode & windowsReadOnly ? 0444 : 0666;
        return most & ~m_all.m_umask;
    }

    bool cannotCreate(const std::string &name)
    {
        if (errno == ELOOP || errno == ENOTDIR)
            return m_diagnostics.report("Cannot create " + printable(name) +
                                        ": a folder on its way is a link or a file in the destination");
        return m_diagnostics.reportSystem("Cannot create " + printable(name));
    }

    Extractor &m_all;
    Destination m_destination;
    Diagnostics &m_diagnostics;
    base::StagedFile m_file;
    std::string m_fileName; // its final one, in its folder
    std::string m_entryName;
};

Extractor::Extractor(const Destination &destination, Paths paths)
    : m_destination(destination), m_paths(paths), m_umask(readUmask())
{
}

EntryReceivers Extractor::receivers()
{
    return {[this](Diagnostics &diagnostics) { return std::make_unique<Thread>(*this, diagnostics); }};
}

void Extractor::finish(Diagnostics &diagnostics) { m_folders.apply(m_destination.root(), diagnostics); }

} // namespace archiver
