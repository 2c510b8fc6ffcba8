#pragma once

#include "Command.h"
#include "TemporaryFolder.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

/// A D-Bus session with a real Secret Service (gnome-keyring) in a home of its own. From now on, the test's
/// own process and what it starts find this session and no other; it is the machine's bus, too. Nobody can be
/// asked for a password here. Make and use it on the main thread: its processes end with the thread that made
/// them.
class SecretService {
public:
    enum class Keyring { Unlocked, Locked, None };

    /// The session's bus alone; nothing answers as the Secret Service.
    SecretService();
    SecretService(const SecretService &) = delete;
    SecretService &operator=(const SecretService &) = delete;

    /// Starts the service, again where it runs. What it kept is still there, but for None: then the service
    /// runs without a keyring.
    void start(Keyring keyring = Keyring::Unlocked);
    void stop();

    void freeze() const; ///< it takes calls and does not answer them
    void thaw() const;   ///< it answers what has come in the meantime

    /// Another service of the session, which is the machine's, too: returns when it has its name.
    [[nodiscard]] std::unique_ptr<BackgroundProgram> serve(const std::string &name,
                                                           const std::vector<std::string> &arguments) const;
    /// What such a service answers to a method of the interface, by whose name its object is called.
    [[nodiscard]] std::string ask(const std::string &service, const std::string &method) const;

private:
    [[nodiscard]] std::unique_ptr<BackgroundProgram> run(const std::vector<std::string> &arguments,
                                                         const std::string &input = {}) const;
    [[nodiscard]] bool has(const std::string &name) const;

    TemporaryFolder m_folder;
    std::map<std::string, std::string> m_environment;
    std::unique_ptr<BackgroundProgram> m_bus;
    std::unique_ptr<BackgroundProgram> m_daemon;
};
