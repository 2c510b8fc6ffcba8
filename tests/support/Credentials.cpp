#include "Credentials.h"

#include "Command.h"

#include <stdexcept>

void runOpenSsl(const std::filesystem::path &folder, const std::string &words)
{
    const CommandResult result = runCommand({"sh", "-c", "openssl " + words}, {.folder = folder});
    if (result.status != 0) throw std::runtime_error("openssl " + words + ": " + result.errors);
}

Credentials makeCredentials(const std::filesystem::path &folder, const std::string &name, int days)
{
    std::filesystem::create_directories(folder);
    runOpenSsl(folder, "genrsa -out " + name + "-key.pem 2048");
    runOpenSsl(folder, "req -x509 -key " + name + "-key.pem -subj /CN=" + name + " -out new.pem");
    runOpenSsl(folder, "x509 -in new.pem -signkey " + name + "-key.pem -out " + name + ".pem -days " +
                           std::to_string(days));
    return {folder / (name + ".pem"), folder / (name + "-key.pem")};
}
