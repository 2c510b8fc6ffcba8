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

std::vector<std::vector<std::string>> Stub::recordedArguments() const
{
    std::vector<std::vector<std::string>> runs;
    const std::string bytes = readFile(m_path.string() + ".record");
    for (std::size_t at = 0, end = 0; (end = bytes.find("--\n", at)) != std::string::npos; at = end + 3) {
        std::vector<std::string> arguments;
        for (std::size_t from = at; from < end;) {
            const std::size_t zero = bytes.find('\0', from);
            arguments.push_back(bytes.substr(from, zero - from));
            from = zero + 1;
        }
        runs.push_back(std::move(arguments));
    }
    return runs;
}

int Stub::processId() const
{
    const fs::path file = m_path.string() + ".pid";
    waitUntil("the start of " + m_path.string(), [&] { return fs::exists(file); });
    return std::stoi(readFile(file));
}
