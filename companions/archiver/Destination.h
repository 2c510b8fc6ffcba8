#pragma once

#include "Diagnostics.h"
#include "FolderChain.h"
#include "Headers.h"

#include <map>

namespace archiver {

/// A folder below which entries are made, whatever their names say: every component is opened from the folder
/// before it, and a symbolic link is never followed. Failures are left in errno.
class Destination {
public:
    Destination() = default;
    /// The same folder, for another thread; none where it can't be opened again.
    Destination(const Destination &other);
    Destination &operator=(const Destination &) = delete;
    ~Destination() = default;

    /// Opens `path`, made with all folders above it where it is missing.
    [[nodiscard]] bool open(const std::string &path);

    /// The parts of an entry's name without empty ones and "."; none where it has "..", a zero byte, or no
    /// part at all.
    [[nodiscard]] static std::optional<std::vector<std::string>> components(const std::string &name);

    /// The folder that holds the last of `components`, made where it is missing; valid until the next call.
    /// -1 where that fails. Folders made here can be used by their owner only, until their entry comes.
    [[nodiscard]] int parentOf(const std::vector<std::string> &components);

    /// How many folders deep parentOf() has come, the last ones of which, made() of them, are new. Where it
    /// failed that is as far as it got.
    [[nodiscard]] std::size_t depth() const { return m_names.size(); }
    [[nodiscard]] std::size_t made() const { return m_made; }

    /// The folder below which all this is, open.
    [[nodiscard]] int root() const { return m_root.get(); }

private:
    bool descend(const std::string &name);
    [[nodiscard]] int last() const { return m_names.empty() ? m_root.get() : m_chain.last(); }

    base::FileDescriptor m_root;
    std::vector<std::string> m_names; ///< of the folders in the chain
    FolderChain m_chain;
    std::size_t m_made = 0;
};

/// The modes and times that folders are to have when all is in them. The room and the time that this takes
/// grow with the lengths of the names, however deep the folders are: an archive may have a hundred thousand
/// in one name.
class FolderAttributes {
public:
    struct State {
        unsigned mode = 0;
        std::optional<Timestamp> modified;
    };

    /// For the folder with that path.
    void set(std::span<const std::string> path, const State &state);
    /// For the folders on that path behind the first `above`, where they have none yet.
    void setMissing(std::span<const std::string> path, std::size_t above, const State &state);

    /// Gives them to the folders below the open folder `root`, from the deepest up: one that its owner may
    /// not enter has to wait for what is in it. What fails is reported.
    void apply(int root, Diagnostics &diagnostics) const;

private:
    struct Folder {
        std::map<std::string, std::size_t> children; // indices of m_folders
        std::optional<State> state;
    };
    struct Level;

    [[nodiscard]] std::size_t child(std::size_t parent, const std::string &name);

    std::vector<Folder> m_folders{1}; // `root` is the first
};

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
