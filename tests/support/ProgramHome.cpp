#include "ProgramHome.h"

#include "Credentials.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

std::string element(const std::string &name, const std::string &text)
{
    return "<" + name + ">" + replaced(replaced(text, "&", "&amp;"), "<", "&lt;") + "</" + name + ">";
}

std::string list(const std::string &key, const std::vector<std::string> &values)
{
    std::string strings;
    for (const std::string &value : values)
        strings += element("string", value);
    return element("key", key) + "<array>" + strings + "</array>";
}

} // namespace

ProgramHome::ProgramHome(std::string program) : m_program(std::move(program))
{
    for (const char *name : {"archives", "config", "out", "state", "tmp"})
        fs::create_directories(m_folder / name);
    writeFile(m_folder / "docs/file", "content");
    writeFile(m_folder / "password", "from a file\nsecond line");
    folders = entries = {text("docs")};
    record = {{"path", text("archives")},
              {"extractpath", text("out")},
              {"emptydir", "0"},
              {"symencryption", "OpenSSL-AES"},
              {"asymencryption", "OpenSSL-SMIME"},
              {"rsyncdst", text("copy")},
              {"split", "0"},
              {"part", "10000"},
              {"passtype", "0"}};
    environment = {{"HOME", path().string()},
                   {"XDG_CONFIG_HOME", text("config")},
                   {"XDG_STATE_HOME", text("state")},
                   {"TMPDIR", text("tmp")}};
    fs::remove(profiles());
    runCommand({m_program, "profiles"}, {.environment = environment}); // writes the settings
}

void ProgramHome::writeProfile() const
{
    std::string values = list("folders", folders) + list("sync", entries);
    for (const auto &[key, value] : record)
        values += element("key", key) + element(key == "passtype" ? "integer" : "string", value);
    writeFile(profiles(), "<plist version=\"1.0\"><dict>" + element("key", "Default profile") + "<dict/>" +
                              element("key", "Mine") + "<dict>" + values + "</dict></dict></plist>");
}

CommandResult ProgramHome::run(const std::vector<std::string> &arguments, const std::string &input) const
{
    writeProfile();
    // A run that hangs is a finding and must not keep the others from being found.
    std::vector<std::string> words{"setsid", "timeout", "--kill-after=5", "60"};
    words.insert(words.end(), launcher.begin(), launcher.end());
    words.push_back(m_program);
    words.insert(words.end(), arguments.begin(), arguments.end());
    return runCommand(words, {.environment = environment, .input = input});
}

CommandResult ProgramHome::runWithPassword(std::vector<std::string> arguments,
                                           const std::vector<std::string> &more) const
{
    if (record.at("passtype") == "0")
        arguments.insert(arguments.end(), {"--password-file", text("password")});
    arguments.insert(arguments.end(), more.begin(), more.end());
    return run(arguments);
}

CommandResult ProgramHome::backUp(const std::vector<std::string> &more) const
{
    return runWithPassword({"backup", "Mine"}, more);
}

CommandResult ProgramHome::extract(const std::vector<std::string> &archives,
                                   const std::vector<std::string> &more) const
{
    std::vector<std::string> words = more;
    words.emplace_back("--");
    words.insert(words.end(), archives.begin(), archives.end());
    return runWithPassword({"extract", "Mine"}, words);
}

void ProgramHome::encryptForCertificate()
{
    const Credentials keys = makeCredentials(m_folder / "keys", "anna");
    record["passtype"] = "2";
    record["lastcertfile"] = keys.certificate.string();
    record["lastpkfile"] = keys.key.string();
}

void ProgramHome::becomeOrdinaryUser()
{
    if (geteuid() != 0) return;
    writeProfile();
    const CommandResult given = runCommand({"chown", "-hR", "65534:65534", path()});
    if (given.status != 0) throw std::runtime_error(given.errors);
    launcher = {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", "--"};
}

void ProgramHome::changeSettings(const std::string &from, const std::string &to) const
{
    writeFile(settings(), replaced(readFile(settings()), from, to));
}

std::string ProgramHome::lastRecord() const
{
    fs::path last;
    std::error_code ignored;
    for (const auto &entry : fs::directory_iterator(m_folder / "state/quillorent/runs", ignored))
        if (entry.path().extension() == ".json" &&
            (last.empty() || entry.last_write_time() > fs::last_write_time(last)))
            last = entry.path();
    return last.empty() ? "" : readFile(last);
}

std::vector<int> ProgramHome::processes() const
{
    std::vector<int> found;
    for (const auto &entry : fs::directory_iterator("/proc")) {
        // What is given a password wipes its arguments, and may hide its environment.
        const auto isOurs = [&](const char *file) {
            std::ostringstream bytes; // none, where it ended in the meantime
            bytes << std::ifstream(entry.path() / file).rdbuf();
            return contains(bytes.str(), path().string());
        };
        if (isOurs("cmdline") || isOurs("environ")) found.push_back(std::stoi(entry.path().filename()));
    }
    return found;
}

std::string replaced(std::string text, const std::string &word, const std::string &by)
{
    for (std::size_t at = 0; (at = text.find(word, at)) != std::string::npos; at += by.size())
        text.replace(at, word.size(), by);
    return text;
}

bool contains(const std::string &text, const std::string &part)
{
    return text.find(part) != std::string::npos;
}

std::vector<std::string> namesIn(const fs::path &folder)
{
    std::vector<std::string> names;
    for (const auto &entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}
