#include "Sshd.h"

#include "Command.h"
#include "TemporaryFolder.h"

#include <pwd.h>
#include <stdexcept>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

Sshd::Sshd(const fs::path &folder, const std::string &command) : m_folder(folder)
{
    fs::create_directories(m_folder);
    for (const char *name : {"host", "user"})
        if (const CommandResult made =
                runCommand({"ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f", m_folder / name});
            made.status != 0)
            throw std::runtime_error(made.errors);
    const std::string restriction = command.empty() ? "" : "command=\"" + command + "\" ";
    writeFile(m_folder / "authorized", restriction + readFile(m_folder / "user.pub"));
    writeFile(m_folder / "known", "server " + readFile(m_folder / "host.pub"));
    writeFile(m_folder / "known-none", "");
    // Where a server of root puts those who are not let in yet.
    if (geteuid() == 0) fs::create_directories("/run/sshd");

    const std::string log = m_folder / "log";
    for (int attempt = 0; attempt < 100; ++attempt) {
        m_port = 20000 + (getpid() + attempt * 101) % 10000;
        writeFile(m_folder / "sshd_config", "ListenAddress 127.0.0.1\nPort " + std::to_string(m_port) +
                                                "\nHostKey " + (m_folder / "host").string() +
                                                "\nAuthorizedKeysFile " + (m_folder / "authorized").string() +
                                                "\nStrictModes no\nUsePAM no\nPidFile none\n");
        // The whole path: it starts itself anew for each connection.
        const std::string program = "/usr/sbin/sshd";
        const std::string configuration = m_folder / "sshd_config";
        m_server = std::make_unique<BackgroundProgram>(
            std::vector<std::string>{program, "-D", "-f", configuration, "-E", log}, CommandOptions{}, log);
        // It ends at once where another program has the port.
        while (!m_server->hasEnded()) {
            if (readFile(log).find("listening on") != std::string::npos) return;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    }
    throw std::runtime_error("sshd does not start: " + readFile(log));
}

std::string Sshd::client(Client client) const
{
    const bool isNew = client == Client::NewToTheServer;
    const std::string key = client == Client::WithoutKey ? "none" : (m_folder / "user").string();
    const int port = client == Client::AtAClosedPort ? 1 : m_port;
    const fs::path configuration = m_folder / ("ssh_config-" + std::to_string(int(client)));
    writeFile(configuration, "Host *\nHostName 127.0.0.1\nHostKeyAlias server\nPort " + std::to_string(port) +
                                 "\nUser " + getpwuid(geteuid())->pw_name + "\nIdentityFile " + key +
                                 "\nIdentitiesOnly yes\nIdentityAgent none\nControlPath none\n"
                                 "GlobalKnownHostsFile /dev/null\nUserKnownHostsFile " +
                                 (m_folder / (isNew ? "known-none" : "known")).string() + '\n');
    return "ssh -F " + configuration.string();
}
