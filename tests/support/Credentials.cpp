#include "Credentials.h"

#include "Command.h"
#include "TemporaryFolder.h"

#include <stdexcept>

namespace {

// Only the authority's command takes dates of the past.
void signForThePast(const std::filesystem::path &folder, const std::string &name)
{
    writeFile(folder / "authority.conf",
              "[ca]\ndefault_ca=own\n[own]\ndatabase=index.txt\npolicy=any\nrand_serial=yes\n"
              "default_md=sha256\n[any]\ncommonName=supplied\n");
    writeFile(folder / "index.txt", "");
    runOpenSsl(folder, "req -new -key " + name + "-key.pem -subj /CN=" + name + " -out request.pem");
    runOpenSsl(folder,
               "ca -batch -selfsign -config authority.conf -notext -outdir . -keyfile " + name +
                   "-key.pem -in request.pem -startdate 20200101000000Z -enddate 20210101000000Z -out " +
                   name + ".pem");
}

} // namespace

void runOpenSsl(const std::filesystem::path &folder, const std::string &words)
{
    const CommandResult result = runCommand({"sh", "-c", "openssl " + words}, {.folder = folder});
    if (result.status != 0) throw std::runtime_error("openssl " + words + ": " + result.errors);
}

Credentials makeCredentials(const std::filesystem::path &folder, const std::string &name, Validity validity)
{
    std::filesystem::create_directories(folder);
    runOpenSsl(folder, "genrsa -out " + name + "-key.pem 2048");
    if (validity == Validity::EndedIn2021)
        signForThePast(folder, name);
    else
        runOpenSsl(folder, "req -x509 -key " + name + "-key.pem -subj /CN=" + name + " -out " + name +
                               ".pem -days " + (validity == Validity::FiveDays ? "5" : "730"));
    return {folder / (name + ".pem"), folder / (name + "-key.pem")};
}
