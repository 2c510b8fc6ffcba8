#pragma once

#include "Diagnostics.h"
#include "FolderChain.h"

#include <optional>
#include <string>
#include <vector>

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

} // namespace archiver
