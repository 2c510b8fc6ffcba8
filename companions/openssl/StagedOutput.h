#pragma once

#include "FileDescriptor.h"

#include <string>
#include <system_error>

/// A result that appears under its name only once it is whole. Until then it is in a file of a passing name
/// beside it, readable by its owner only, which is removed where it is not committed. A target that is no
/// regular file (a pipe, a device), that is write-protected, or in whose folder no file can be made is not
/// staged: whoever writes it gets the target itself, and its errors.
class StagedOutput {
public:
    explicit StagedOutput(const std::string &target);
    ~StagedOutput();
    StagedOutput(const StagedOutput &) = delete;
    StagedOutput &operator=(const StagedOutput &) = delete;

    [[nodiscard]] bool isStaged() const { return !m_passingName.empty(); }
    /// The file to write to: the one of the passing name, or the target where it is not staged.
    [[nodiscard]] const std::string &path() const { return isStaged() ? m_passingName : m_target; }
    /// The staged file, open for writing; -1 where it is not staged.
    [[nodiscard]] int descriptor() const { return m_file.get(); }
    /// Whether the file system has next to no room left.
    [[nodiscard]] bool isFull() const;
    /// Gives the staged file its name, in the place of an older file. Nothing to do where it is not staged.
    [[nodiscard]] std::error_code commit();

private:
    std::string m_target; ///< where it is staged: with symbolic links resolved
    std::string m_passingName;
    FileDescriptor m_file;
};
