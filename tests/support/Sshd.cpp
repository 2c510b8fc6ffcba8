#include "Sshd.h"

#include "Command.h"
#include "TemporaryFolder.h"

#include <arpa/inet.h>
#include <cerrno>
#include <csignal>
#include <netinet/in.h>
#include <pwd.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class Socket {
public:
    Socket() : m_descriptor(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {}
    ~Socket() { close(m_descriptor); }
    Socket(const Socket &) = delete;
    Socket &operator=(const Socket &) = delete;

    /// A port of the loopback interface that nobody uses.
    [[nodiscard]] int freePort() const
    {
        sockaddr_in address = loopback(0);
        socklen_t size = sizeof address;
        auto *plain = reinterpret_cast<sockaddr *>(&address);
        if (bind(m_descriptor, plain, size) != 0 || getsockname(m_descriptor, plain, &size) != 0)
            throw std::runtime_error("no free port");
        return ntohs(address.sin_port);
    }

    [[nodiscard]] bool connects(int port) const
    {
        const sockaddr_in address = loopback(port);
        return connect(m_descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    }

private:
    static sockaddr_in loopback(int port)
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<in_port_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return address;
    }

    int m_descriptor;
};

void makeKey(const fs::path &path)
{
    const CommandResult result =
        runCommand({"ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f", path.string()});
    if (result.status != 0) throw std::runtime_error(result.errors);
}

/// The server's own process; it stays in the foreground.
pid_t startServer(const fs::path &configuration, const fs::path &log)
{
    const pid_t child = fork();
    if (child != 0) return child;
    // The whole path: it starts itself anew for each connection.
    execl("/usr/sbin/sshd", "/usr/sbin/sshd", "-D", "-f", configuration.c_str(), "-E", log.c_str(), nullptr);
    _exit(127);
}

} // namespace

Sshd::Sshd(const fs::path &folder, const std::string &command) : m_folder(folder)
{
    fs::create_directories(m_folder);
    for (const char *name : {"host", "user"})
        makeKey(m_folder / name);
    const std::string restriction = command.empty() ? "" : "command=\"" + command + "\" ";
    writeFile(m_folder / "authorized", restriction + readFile(m_folder / "user.pub"));
    writeFile(m_folder / "known", "server " + readFile(m_folder / "host.pub"));
    writeFile(m_folder / "known-none", "");
    // Where a server of root puts those who are not let in yet.
    if (geteuid() == 0) fs::create_directories("/run/sshd");

    for (int attempt = 0; attempt < 100; ++attempt) {
        m_port = Socket().freePort();
        writeFile(m_folder / "sshd_config", "ListenAddress 127.0.0.1\nPort " + std::to_string(m_port) +
                                                "\nHostKey " + (m_folder / "host").string() +
                                                "\nAuthorizedKeysFile " + (m_folder / "authorized").string() +
                                                "\nStrictModes no\nUsePAM no\nPidFile none\n");
        m_process = startServer(m_folder / "sshd_config", m_folder / "log");
        // It ends at once where another program has taken the port meanwhile.
        while (waitpid(m_process, nullptr, WNOHANG) == 0) {
            if (Socket().connects(m_port)) return;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    }
    throw std::runtime_error("sshd does not start: " + readFile(m_folder / "log"));
}

Sshd::~Sshd()
{
    kill(m_process, SIGTERM);
    while (waitpid(m_process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

std::string Sshd::client(Client client) const
{
    const bool isNew = client == Client::NewToTheServer;
    const std::string key = client == Client::WithoutKey ? "none" : (m_folder / "user").string();
    const int port = client == Client::AtAClosedPort ? Socket().freePort() : m_port;
    const fs::path configuration = m_folder / ("ssh_config-" + std::to_string(int(client)));
    writeFile(configuration, "Host *\nHostName 127.0.0.1\nHostKeyAlias server\nPort " + std::to_string(port) +
                                 "\nUser " + getpwuid(geteuid())->pw_name + "\nIdentityFile " + key +
                                 "\nIdentitiesOnly yes\nIdentityAgent none\nControlPath none\n"
                                 "GlobalKnownHostsFile /dev/null\nUserKnownHostsFile " +
                                 (m_folder / (isNew ? "known-none" : "known")).string() + '\n');
    return "ssh -F " + configuration.string();
}
