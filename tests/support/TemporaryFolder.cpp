#include "TemporaryFolder.h"

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <system_error>

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder()
{
    std::string name = (fs::temp_directory_path() / "quillorent-test-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::system_error(errno, std::generic_category(), "mkdtemp");
    m_path = fs::canonical(name);
}

TemporaryFolder::~TemporaryFolder()
{
    // Tests take permissions away; without them back, a folder can't be emptied by anyone but root.
    std::error_code ignored;
    for (auto entry =
             fs::recursive_directory_iterator(m_path, fs::directory_options::skip_permission_denied, ignored);
         entry != fs::recursive_directory_iterator(); entry.increment(ignored))
        if (entry->is_directory(ignored) && !entry->is_symlink(ignored))
            fs::permissions(entry->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
    fs::remove_all(m_path, ignored);
}

void writeFile(const fs::path &path, const std::string &content)
{
    if (path.has_parent_path()) fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file.exceptions(std::ios::badbit | std::ios::failbit);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
}

std::string readFile(const fs::path &path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::system_error(errno, std::generic_category(), path.string());
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
