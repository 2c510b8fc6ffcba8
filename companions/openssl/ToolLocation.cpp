#include "ToolLocation.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::optional<FileIdentity> identityOf(const char *path)
{
    struct stat status {};
    if (stat(path, &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return FileIdentity{status.st_dev, status.st_ino};
}

} // namespace

std::vector<FileIdentity> ownIdentities(const char *ownName)
{
    std::error_code error;
    std::filesystem::path file = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error && ownName && std::strchr(ownName, '/')) file = ownName;
    std::vector<FileIdentity> identities;
    if (file.empty()) return identities;
    for (const std::filesystem::path &path : {file, file.parent_path() / "openssl"})
        if (const auto identity = identityOf(path.c_str())) identities.push_back(*identity);
    return identities;
}

std::vector<std::string> toolCandidates(const char *searchPath)
{
    std::vector<std::string> candidates{"/usr/bin/openssl", "/usr/local/bin/openssl", "/bin/openssl"};
    std::string_view rest = searchPath ? searchPath : "";
    while (!rest.empty()) {
        const std::string_view folder = rest.substr(0, rest.find(':'));
        rest.remove_prefix(folder.size() == rest.size() ? rest.size() : folder.size() + 1);
        // A relative folder would make the tool depend on where the program happens to be started.
        if (folder.starts_with('/')) candidates.push_back(std::string(folder) + "/openssl");
    }
    return candidates;
}

std::optional<std::string> findTool(const std::vector<std::string> &candidates,
                                    const std::vector<FileIdentity> &own)
{
    for (const std::string &candidate : candidates) {
        const auto identity = identityOf(candidate.c_str());
        if (identity && !std::ranges::count(own, *identity) && access(candidate.c_str(), X_OK) == 0)
            return candidate;
    }
    return std::nullopt;
}
