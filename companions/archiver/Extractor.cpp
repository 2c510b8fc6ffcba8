#include "Extractor.h"

#include "ArchiveProcessor.h"
#include "EntryName.h"
#include "Folders.h"
#include "StagedFile.h"

#include <algorithm>
#include <cwctype>
#include <filesystem>
#include <mutex>
#include <unordered_map>

namespace archiver {

namespace {

constexpr unsigned windowsReadOnly = 1;
constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

/// A folder, made with all folders above it where it is missing; closed, with errno set, where that fails.
base::FileDescriptor openDestination(const std::string &path)
{
    base::FileDescriptor folder(open(path.c_str(), folderFlags));
    if (folder || errno != ENOENT) return folder;
    std::error_code error;
    std::filesystem::create_directories(path, error);
    folder = base::FileDescriptor(open(path.c_str(), folderFlags));
    if (error) errno = error.value(); // tells more
    return folder;
}

unsigned readUmask()
{
    const mode_t present = umask(0);
    umask(present);
    return present;
}

/// The components of an entry's name; none where it has "..", a zero byte, or no component at all.
std::optional<std::vector<std::string>> usableComponents(const std::string &name)
{
    std::vector<std::string> components = componentsOf(name);
    const bool isUsable = !components.empty() && name.find('\0') == std::string::npos &&
                          std::ranges::count(components, "..") == 0;
    return isUsable ? std::optional(std::move(components)) : std::nullopt;
}

std::string joined(const std::vector<std::string> &components)
{
    std::string path;
    for (const std::string &component : components)
        path += (path.empty() ? "" : "/") + component;
    return path;
}

/// The way from a folder, open as `root`, down to where entries are made, whatever their names say: every
/// component is opened from the folder before it, and a symbolic link is never followed.
class FolderWay {
public:
    explicit FolderWay(int root) : m_root(root) {}

    struct End {
        int folder;        ///< valid until the next call; -1, with errno set: it can't be opened or made
        std::size_t depth; ///< how many folders deep it is, or as far as it got
        std::size_t made;  ///< how many of them, the last ones, are new
    };
    /// The folder that holds the last of `components`, made where it is missing. Folders made here can be
    /// used by their owner only, until their entry comes.
    End parentOf(const std::vector<std::string> &components)
    {
        const std::size_t depth = components.size() - 1;
        std::size_t common = 0;
        while (common < std::min(depth, m_names.size()) && m_names[common] == components[common])
            ++common;
        // Where a folder was moved away meanwhile, the way begins at the root again.
        if (!m_chain.shorten(common)) common = 0;
        m_names.resize(common);
        std::size_t made = 0;
        while (m_names.size() < depth)
            if (!descend(components[m_names.size()], made)) return {-1, m_names.size(), made};
        return {last(), depth, made};
    }

private:
    bool descend(const std::string &name, std::size_t &made)
    {
        const int from = last();
        base::FileDescriptor folder(openat(from, name.c_str(), folderFlags | O_NOFOLLOW));
        if (!folder && errno == ENOENT) {
            // Another archive that is extracted here at the same time may have the same folder.
            const bool isMade = mkdirat(from, name.c_str(), 0700) == 0;
            if (!isMade && errno != EEXIST) return false;
            folder = base::FileDescriptor(openat(from, name.c_str(), folderFlags | O_NOFOLLOW));
            if (folder && isMade) ++made;
        }
        if (!folder || !m_chain.push(std::move(folder))) return false;
        m_names.push_back(name);
        return true;
    }

    [[nodiscard]] int last() const { return m_names.empty() ? m_root : m_chain.last(); }

    int m_root;
    std::vector<std::string> m_names; ///< of the folders in the chain
    FolderChain m_chain;
};

/// Of entries whose names differ in upper and lower case only, the first has the name where the destination
/// ignores that: any other would replace it. Paths are kept as hashes.
class Names {
public:
    explicit Names(int folder)
    {
        // File systems don't tell, so a file has to.
        const base::PassingNames names(".rar", "case");
        base::StagedFile file = base::StagedFile::create(folder, names);
        std::string other = file && file.giveName(names) ? file.passingName() : "";
        std::ranges::transform(other, other.begin(), [](unsigned char each) { return std::toupper(each); });
        m_canMeet = !other.empty() && faccessat(folder, other.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0;
    }

    /// Whether no other entry has it.
    [[nodiscard]] bool claim(const std::string &path)
    {
        if (!m_canMeet) return true;
        std::wstring letters(path.size(), L'\0');
        const std::size_t count = std::mbstowcs(letters.data(), path.c_str(), letters.size());
        if (count == static_cast<std::size_t>(-1)) letters.assign(path.begin(), path.end());
        std::ranges::transform(letters, letters.begin(), std::towupper);
        const std::size_t own = std::hash<std::string>()(path);
        return m_owners.try_emplace(std::hash<std::wstring>()(letters), own).first->second == own;
    }

private:
    bool m_canMeet = false;
    std::unordered_map<std::size_t, std::size_t> m_owners{};
};

/// What the threads share.
struct Extraction {
    base::FileDescriptor root;
    Paths paths;
    Names names{root.get()};
    unsigned umask = readUmask();
    std::mutex mutex{};
    FolderAttributes folders{};
};

/// What one thread makes.
class Extractor final : public EntryReceiver {
public:
    Extractor(Extraction &all, Diagnostics &diagnostics)
        : m_all(all), m_way(all.root.get()), m_diagnostics(diagnostics)
    {
    }

    void folder(const FileHeader &header) override
    {
        if (m_all.paths == Paths::Drop) return;
        std::optional<std::vector<std::string>> components = way(header.name);
        if (!components) return;
        // One component more than there is, so that the folder itself is made where it is missing.
        components->emplace_back();
        if (enter(*components, header.name) < 0) return;
        components->pop_back();
        const std::lock_guard lock(m_all.mutex);
        m_all.folders.set(*components, {permissions(header), header.modified});
    }

    void link(const FileHeader &header) override
    {
        const LinkTarget::Kind kind = header.link->kind;
        const bool isCopy = kind == LinkTarget::Kind::Hard || kind == LinkTarget::Kind::Copy;
        isCopy ? copyOfEntry(header) : symbolicLink(header);
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
        const std::optional<std::vector<std::string>> components = usableComponents(header.name);
        if (!components) return {};
        return m_all.paths == Paths::Drop ? components->back() : joined(*components);
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
        if (!components) return {};
        std::unique_lock lock(m_all.mutex);
        const bool isFree = m_all.names.claim(joined(*components));
        lock.unlock();
        if (isFree) return {enter(*components, name), components->back()};
        m_diagnostics.report("Cannot create " + printable(name) +
                             ": another entry has the name where upper and lower case are the same");
        return {};
    }

    std::optional<std::vector<std::string>> way(const std::string &name)
    {
        std::optional<std::vector<std::string>> components = usableComponents(name);
        if (!components) {
            m_diagnostics.report("Cannot create " + printable(name) +
                                 ": the name leads out of the destination");
            return std::nullopt;
        }
        if (m_all.paths == Paths::Drop) components->erase(components->begin(), components->end() - 1);
        return components;
    }

    int enter(const std::vector<std::string> &components, const std::string &name)
    {
        const auto [folder, depth, made] = m_way.parentOf(components);
        if (folder < 0) cannotCreate(name);
        if (made > 0) {
            const std::lock_guard lock(m_all.mutex);
            m_all.folders.setMissing(std::span(components).first(depth), depth - made,
                                     {0777u & ~m_all.umask, std::nullopt});
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
            if (errno == EPERM || errno == ENOSYS || errno == EOPNOTSUPP)
                m_diagnostics.report("Cannot create " + printable(header.name) +
                                     ": links can't be made on this disk");
            else
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
        return most & ~m_all.umask;
    }

    bool cannotCreate(const std::string &name)
    {
        if (errno == ELOOP || errno == ENOTDIR)
            return m_diagnostics.report("Cannot create " + printable(name) +
                                        ": a folder on its way is a link or a file in the destination");
        return m_diagnostics.reportSystem("Cannot create " + printable(name));
    }

    Extraction &m_all;
    FolderWay m_way;
    Diagnostics &m_diagnostics;
    base::StagedFile m_file;
    std::string m_fileName; // its final one, in its folder
    std::string m_entryName;
};

} // namespace

void extractArchive(const std::string &archive, const std::string &folder, Paths paths,
                    Diagnostics &diagnostics)
{
    base::FileDescriptor root = openDestination(folder);
    if (!root) {
        diagnostics.reportSystem("Cannot open the destination " + printable(folder));
        return;
    }
    Extraction all{std::move(root), paths};
    const auto make = [&all](Diagnostics &each) { return std::make_unique<Extractor>(all, each); };
    processArchive(archive, {make}, diagnostics);
    all.folders.apply(all.root.get(), diagnostics);
}

} // namespace archiver
