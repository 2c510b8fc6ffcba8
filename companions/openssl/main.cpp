// Takes the arguments of the system's `openssl` program and runs it with them, adding what its users expect
// of files that are to be kept: today's key derivation, ciphers that it hides, messages of any size, results
// that are whole or not there at all.

#include "ClosedMemory.h"
#include "CommandPlan.h"
#include "Complaint.h"
#include "HandedArguments.h"
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
    becomeTool(tool, argv);
    complain("cannot run " + tool + ": " + std::generic_category().message(errno));
    return failure;
}

} // namespace

int main(int argc, char **argv)
{
    // Before anything else, so that the password is within reach of others for as short as can be.
    base::closeMemory();
    std::optional<std::vector<char *>> arguments = takeArguments(argc, argv);
    if (!arguments) {
        complain("cannot read its arguments: " + std::generic_category().message(errno));
        return failure;
    }
    Secret password;
    const CommandPlan plan = planCommand(std::span(*arguments).subspan(1, arguments->size() - 2), password);
    if (const Refusal *const refusal = std::get_if<Refusal>(&plan)) {
        complain(refusal->message);
        return failure;
    }
    if (const CipherRun *const run = std::get_if<CipherRun>(&plan)) {
        const auto make = run->isDecryption ? decryption : encryption;
        return convert(run->files, make(run->file, password.text()));
    }
    if (const SmimeDecryption *const decryption = std::get_if<SmimeDecryption>(&plan))
        return decryptSmime(*decryption, password);
    if (const SmimeEncryption *const encryption = std::get_if<SmimeEncryption>(&plan))
        return encryptSmime(*encryption);
    const auto tool = findTool(toolCandidates(std::getenv("PATH")), ownIdentities(argv[0]));
    if (!tool) {
        complain("the system has no openssl program: install its package");
        return failure;
    }
    return carryOut(plan, *tool, arguments->data(), password);
}
