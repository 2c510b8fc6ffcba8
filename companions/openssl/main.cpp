// Takes the arguments of the system's `openssl` program and runs it with them, adding what its users expect
// of files that are to be kept: today's key derivation, ciphers that it hides, messages of any size, results
// that are whole or not there at all.

#include "CipherDecryption.h"
#include "CommandPlan.h"
#include "RunTool.h"
#include "ToolLocation.h"
#include "ToolProcess.h"

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <system_error>

namespace {

constexpr int failure = 1;

int carryOut(const CommandPlan &plan, const std::string &tool, char **argv, Secret &password)
{
    if (const ToolRun *const run = std::get_if<ToolRun>(&plan)) return runTool(tool, *run, password);
    if (const CipherDecryption *const decryption = std::get_if<CipherDecryption>(&plan))
        return decryptWithCipher(tool, *decryption, password);
    becomeTool(tool, argv);
    complain("cannot run " + tool + ": " + std::generic_category().message(errno));
    return failure;
}

} // namespace

int main(int argc, char **argv)
{
    // Before anything else, so that the password is in the list of processes for as short as can be.
    Secret password;
    const CommandPlan plan =
        planCommand({argv + 1, static_cast<std::size_t>(argc > 0 ? argc - 1 : 0)}, password);
    if (const Refusal *const refusal = std::get_if<Refusal>(&plan)) {
        complain(refusal->message);
        return failure;
    }
    if (const SmimeDecryption *const decryption = std::get_if<SmimeDecryption>(&plan))
        return decryptSmime(*decryption, password);
    const auto tool = findTool(toolCandidates(std::getenv("PATH")), ownIdentity(argv[0]));
    if (!tool) {
        complain("the system has no openssl program: install its package");
        return failure;
    }
    return carryOut(plan, *tool, argv, password);
}
