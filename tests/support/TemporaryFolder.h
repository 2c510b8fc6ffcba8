#pragma once

#include <filesystem>
#include <string>

/// A folder of the test's own below the system's temporary folder, removed with all that is in it at the end.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    const std::filesystem::path &path() const { return m_path; }
    std::filesystem::path operator/(const std::string &name) const { return m_path / name; }

private:
    std::filesystem::path m_path;
};

/// Writes `content` to a file, whose folders are made where they are missing.
void writeFile(const std::filesystem::path &path, const std::string &content);

/// The whole content of a file; throws where it can't be read.
std::string readFile(const std::filesystem::path &path);
