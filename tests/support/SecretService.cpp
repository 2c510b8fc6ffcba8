#include "SecretService.h"

#include "Command.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace {

const std::string address = "DBUS_SESSION_BUS_ADDRESS";

// Without the folders of services: the bus starts nothing by itself, neither a service nor a prompt.
std::string busConfiguration(const fs::path &socket)
{
    return "<busconfig><type>session</type><listen>unix:path=" + socket.string() +
           "</listen><auth>EXTERNAL</auth><policy context=\"default\"><allow send_destination=\"*\"/>"
           "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>";
}

void waitUntil(const std::string &what, const std::function<bool()> &condition)
{
    const auto end = std::chrono::steady_clock::now() + 30s;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end) throw std::runtime_error(what + " did not come");
        std::this_thread::sleep_for(5ms);
    }
}

void endProcess(pid_t &process)
{
    if (process <= 0) return;
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    process = -1;
}

} // namespace

SecretService::SecretService()
{
    const fs::path runtime = m_folder / "runtime";
    for (const fs::path &folder : {runtime, m_folder / "home"}) {
        fs::create_directories(folder);
        fs::permissions(folder, fs::perms::owner_all);
    }
    m_environment = {{address, "unix:path=" + (m_folder / "bus").string()},
                     {"HOME", (m_folder / "home").string()},
                     {"XDG_RUNTIME_DIR", runtime.string()},
                     {"XDG_DATA_HOME", (m_folder / "data").string()},
                     {"XDG_CACHE_HOME", (m_folder / "cache").string()},
                     {"XDG_CONFIG_HOME", (m_folder / "config").string()},
                     {"DISPLAY", ""},
                     {"WAYLAND_DISPLAY", ""}};

    writeFile(m_folder / "bus.conf", busConfiguration(m_folder / "bus"));
    m_bus = spawn({"dbus-daemon", "--nofork", "--config-file=" + (m_folder / "bus.conf").string()});
    waitUntil("the bus", [this] { return fs::exists(m_folder / "bus"); });

    if (const char *own = getenv(address.c_str())) m_replaced[address] = own;
    setenv(address.c_str(), m_environment[address].c_str(), 1);
}

SecretService::~SecretService()
{
    endProcess(m_daemon);
    endProcess(m_bus);
    if (m_replaced.contains(address))
        setenv(address.c_str(), m_replaced[address].c_str(), 1);
    else
        unsetenv(address.c_str());
}

void SecretService::start(Keyring keyring)
{
    stop();
    const fs::path keyrings = m_folder / "data/keyrings";
    if (keyring == Keyring::None) fs::remove_all(keyrings);
    if (keyring == Keyring::Locked && !fs::exists(keyrings)) start(Keyring::Unlocked);
    if (keyring == Keyring::Unlocked)
        launch({"--unlock"}, "the keyring's password");
    else
        launch({}, {});
}

void SecretService::stop() { endProcess(m_daemon); }

void SecretService::freeze() const { kill(m_daemon, SIGSTOP); }

void SecretService::thaw() const { kill(m_daemon, SIGCONT); }

void SecretService::launch(const std::vector<std::string> &more, const std::string &input)
{
    stop();
    const std::vector<std::string> ownerQuery{"dbus-send",
                                              "--bus=" + m_environment[address],
                                              "--print-reply",
                                              "--dest=org.freedesktop.DBus",
                                              "/",
                                              "org.freedesktop.DBus.NameHasOwner",
                                              "string:org.freedesktop.secrets"};
    const auto isThere = [&] { return runCommand(ownerQuery).output.find("true") != std::string::npos; };
    waitUntil("the end of the service", [&] { return !isThere(); });

    std::vector<std::string> arguments{"gnome-keyring-daemon", "--foreground", "--components=secrets",
                                       "--control-directory=" + (m_folder / "control").string()};
    arguments.insert(arguments.end(), more.begin(), more.end());
    m_daemon = spawn(arguments, input);
    waitUntil("the service", isThere);
}

pid_t SecretService::spawn(const std::vector<std::string> &arguments, const std::string &input)
{
    // It ends with the test, however that ends.
    std::vector<std::string> texts{"setpriv", "--pdeathsig", "KILL", "env"};
    for (const auto &[name, value] : m_environment)
        texts.push_back(name + '=' + value);
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char *> argv;
    for (std::string &text : texts)
        argv.push_back(text.data());
    argv.push_back(nullptr);

    const std::string inputFile = m_folder / "input";
    const std::string log = m_folder / "log";
    writeFile(inputFile, input);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, inputFile.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, log.c_str(), O_WRONLY | O_CREAT | O_APPEND,
                                     0600);
    posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
    pid_t process = -1;
    const int error = posix_spawnp(&process, argv.front(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error) throw std::system_error(error, std::generic_category(), arguments.front());
    return process;
}
