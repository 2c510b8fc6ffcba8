#pragma once

#include "FileDescriptor.h"

namespace base {

/// How files are called that need a name before they may have their own. It follows from the final name, so
/// that the next run for the same target knows what a killed one has left.
class PassingNames {
public:
    /// `program`: ".rar", say.
    PassingNames(const std::string &program, const std::string &target);

    /// Short, whatever the length of the target's name.
    [[nodiscard]] std::string name(unsigned number) const { return m_start + std::to_string(number); }
    /// One that no number gives.
    [[nodiscard]] std::string special(const std::string &word) const { return m_start + word; }
    [[nodiscard]] bool include(const std::string &name) const { return name.starts_with(m_start); }

private:
    std::string m_start;
};

/// Removes what killed runs left in the folder under such names: regular files of this user's with no other
/// name, which nobody is at work on. Whatever else is there stays.
void removeLeftovers(int folder, const PassingNames &names);

/// A file that gets its name once it is whole, and until then has none where the file system knows how: then
/// nothing is left of it whatever ends the program. Elsewhere it has a passing name, and is removed unless it
/// gets its final one. Its mode is 0600. It is written and read through its descriptor and never opened by a
/// name that anybody else could have changed.
class StagedFile {
public:
    StagedFile() = default;
    ~StagedFile() { discard(); }
    StagedFile(StagedFile &&other) noexcept { *this = std::move(other); }

    StagedFile &operator=(StagedFile &&other) noexcept
    {
        if (this == &other) return *this;
        discard();
        m_file = std::move(other.m_file);
        m_passingName = std::exchange(other.m_passingName, {});
        m_folder = other.m_folder;
        m_identity = other.m_identity;
        return *this;
    }

    StagedFile(const StagedFile &) = delete;
    StagedFile &operator=(const StagedFile &) = delete;

    /// In the folder open as `folder`, which has to stay open. Not open, with errno set, where that fails.
    /// `number`: from which on to look for a passing name, where many share them.
    [[nodiscard]] static StagedFile create(int folder, const PassingNames &names, unsigned number = 0)
    {
        StagedFile created;
        created.m_folder = folder;
        // Not every file system has such files (EOPNOTSUPP, EISDIR, ENOENT); any other reason will show
        // again.
        if (!created.openNameless() && !created.createNamed(names, number)) return {};
        return created;
    }

    [[nodiscard]] explicit operator bool() const { return static_cast<bool>(m_file); }
    [[nodiscard]] int descriptor() const { return m_file.get(); }
    /// Empty where it has none.
    [[nodiscard]] const std::string &passingName() const { return m_passingName; }
    /// Its number in the file system, where it has a passing name.
    [[nodiscard]] std::uint64_t inode() const { return m_identity.st_ino; }

    /// Gives it a passing name, for what can be done to names only, and keeps others from removing it as long
    /// as it is open. False with errno set.
    [[nodiscard]] bool giveName(const PassingNames &names, unsigned number = 0)
    {
        return !m_passingName.empty() || (link(names, number) && keep());
    }

    /// Closes a file that has a passing name, to have fewer open. False with errno set.
    [[nodiscard]] bool park() { return m_file.close(); }
    /// Opens it again, where it is still the same. False with errno set.
    [[nodiscard]] bool unpark();

    /// Gives it its name in the folder, over a file or link of that name. It stays open. False with errno
    /// set.
    [[nodiscard]] bool publish(const std::string &name, const PassingNames &names);
    /// Somebody else has given the passing name its final one.
    void releaseName() { m_passingName.clear(); }

    void discard()
    {
        if (!m_passingName.empty()) unlinkat(m_folder, m_passingName.c_str(), 0);
        releaseName();
        m_file.close();
    }

private:
    [[nodiscard]] bool createNamed(const PassingNames &names, unsigned number);
    [[nodiscard]] bool openNameless();
    [[nodiscard]] bool link(const PassingNames &names, unsigned number);
    [[nodiscard]] bool keep();

    FileDescriptor m_file;
    std::string m_passingName;
    int m_folder = -1;
    struct stat m_identity {}; ///< where it has a passing name
};

} // namespace base
