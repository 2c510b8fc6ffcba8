#pragma once

#include <filesystem>
#include <string>

/// A copy of the stub tool in a test's folder, under a name of its own; stub-tool.sh lists its behaviours.
class Stub {
public:
    Stub(const std::filesystem::path &folder, const std::string &name, const std::string &behaviour);

    void behave(const std::string &behaviour) const;

    [[nodiscard]] const std::filesystem::path &path() const { return m_path; }

    /// Waits until it hangs, and gives its process id.
    [[nodiscard]] int processId() const;

private:
    std::filesystem::path m_path;
};
