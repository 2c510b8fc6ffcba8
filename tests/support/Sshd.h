#pragma once

#include "Command.h"

#include <filesystem>
#include <memory>
#include <string>

/// An ssh server of the test's own on the loopback interface. It lets in whoever runs the test, by a key.
class Sshd {
public:
    /// Its keys and its log lie in the folder. `command`, where there is one, runs in place of what a client
    /// asks for; that is in SSH_ORIGINAL_COMMAND then.
    explicit Sshd(const std::filesystem::path &folder, const std::string &command = {});

    enum class Client { Welcome, WithoutKey, NewToTheServer, AtAClosedPort };

    /// The command that connects to it, whatever the server is called: for RSYNC_RSH.
    [[nodiscard]] std::string client(Client client = Client::Welcome) const;

private:
    const std::filesystem::path m_folder;
    int m_port = 0;
    std::unique_ptr<BackgroundProgram> m_server;
};
