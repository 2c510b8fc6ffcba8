#include "SecretService.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>

namespace fs = std::filesystem;

namespace {

const std::string address = "DBUS_SESSION_BUS_ADDRESS";
const std::string machineAddress = "DBUS_SYSTEM_BUS_ADDRESS";
const std::string secrets = "org.freedesktop.secrets";

// Without the folders of services: the bus starts nothing by itself, neither a service nor a prompt.
std::string busConfiguration(const fs::path &socket)
{
    return "<busconfig><type>session</type><listen>unix:path=" + socket.string() +
           "</listen><auth>EXTERNAL</auth><policy context=\"default\"><allow user=\"*\"/><allow "
           "send_destination=\"*\"/>"
           "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>";
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
                     {machineAddress, "unix:path=" + (m_folder / "bus").string()},
                     {"HOME", (m_folder / "home").string()},
                     {"XDG_RUNTIME_DIR", runtime.string()},
                     {"XDG_DATA_HOME", (m_folder / "data").string()},
                     {"XDG_CACHE_HOME", (m_folder / "cache").string()},
                     {"XDG_CONFIG_HOME", (m_folder / "config").string()},
                     {"DISPLAY", ""},
                     {"WAYLAND_DISPLAY", ""}};

    fs::permissions(m_folder.path(), fs::perms(0711)); // programs that a test makes another user's, too
    writeFile(m_folder / "bus.conf", busConfiguration(m_folder / "bus"));
    m_bus = run({"dbus-daemon", "--nofork", "--config-file=" + (m_folder / "bus.conf").string()});
    waitUntil("the bus", [this] { return fs::exists(m_folder / "bus"); });
    for (const std::string &bus : {address, machineAddress})
        setenv(bus.c_str(), m_environment[bus].c_str(), 1);
}

std::unique_ptr<BackgroundProgram> SecretService::run(const std::vector<std::string> &arguments,
                                                      const std::string &input) const
{
    return std::make_unique<BackgroundProgram>(
        arguments, CommandOptions{.environment = m_environment, .input = input}, m_folder / "log");
}

void SecretService::start(Keyring keyring)
{
    const fs::path keyrings = m_folder / "data/keyrings";
    if (keyring == Keyring::Locked && !fs::exists(keyrings)) start();
    stop();
    waitUntil("the end of the service", [&] { return !has(secrets); });
    if (keyring == Keyring::None) fs::remove_all(keyrings);

    std::vector<std::string> arguments{"gnome-keyring-daemon", "--foreground", "--components=secrets",
                                       "--control-directory=" + (m_folder / "control").string()};
    if (keyring == Keyring::Unlocked) arguments.emplace_back("--unlock");
    m_daemon = run(arguments, "the keyring's password");
    waitUntil("the service", [&] { return has(secrets); });
}

void SecretService::stop() { m_daemon.reset(); }

void SecretService::freeze() const { m_daemon->signal(SIGSTOP); }

void SecretService::thaw() const { m_daemon->signal(SIGCONT); }

bool SecretService::has(const std::string &name) const
{
    const std::string bus = "--bus=" + m_environment.at(address);
    const std::string dbus = "org.freedesktop.DBus";
    return runCommand({"dbus-send", bus, "--print-reply", "--dest=" + dbus, "/", dbus + ".NameHasOwner",
                       "string:" + name})
               .output.find("true") != std::string::npos;
}

std::unique_ptr<BackgroundProgram> SecretService::serve(const std::string &name,
                                                        const std::vector<std::string> &arguments) const
{
    auto service = run(arguments);
    waitUntil(name, [&] { return has(name); });
    return service;
}

std::string SecretService::ask(const std::string &service, const std::string &method) const
{
    std::string path = "/" + service;
    std::replace(path.begin(), path.end(), '.', '/');
    return runCommand({"dbus-send", "--bus=" + m_environment.at(address), "--print-reply",
                       "--dest=" + service, path, method})
        .output;
}
