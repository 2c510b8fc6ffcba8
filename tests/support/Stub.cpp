#include "Stub.h"

#include "Command.h"
#include "TemporaryFolder.h"

namespace fs = std::filesystem;

Stub::Stub(const fs::path &folder, const std::string &name, const std::string &behaviour)
    : m_path(folder / name)
{
    fs::create_directories(folder);
    fs::copy_file(QUILLORENT_STUB_TOOL, m_path, fs::copy_options::overwrite_existing);
    behave(behaviour);
}

void Stub::behave(const std::string &behaviour) const
{
    writeFile(m_path.string() + ".behaviour", behaviour);
}

int Stub::processId() const
{
    const fs::path file = m_path.string() + ".pid";
    waitUntil("the start of " + m_path.string(), [&] { return fs::exists(file); });
    return std::stoi(readFile(file));
}
