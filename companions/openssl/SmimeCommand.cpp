#include "SmimeCommand.h"

#include "CommandLine.h"

#include <array>
#include <sys/stat.h>

namespace {

// https://docs.openssl.org/master/man1/openssl-smime/
constexpr auto optionsWithValue = std::to_array<std::string_view>(
    {"in",        "inform",        "out",      "outform",   "inkey",           "keyform",      "engine",
     "config",    "passin",        "md",       "signer",    "content",         "certfile",     "recip",
     "to",        "from",          "subject",  "CApath",    "CAfile",          "CAstore",      "rand",
     "writerand", "policy",        "purpose",  "attime",    "verify_name",     "verify_depth", "auth_level",
     "verify_ip", "provider-path", "provider", "propquery", "verify_hostname", "verify_email"});

CommandLine readCommandLine(std::span<char *const> arguments) { return {arguments, optionsWithValue}; }

/// The option of the operation that counts, the last one; null where there is none.
const Option *operationOf(const CommandLine &line)
{
    return line.last({"encrypt", "decrypt", "sign", "resign", "verify", "pk7out"});
}

Refusal tooLarge(const std::string &path, std::int64_t size, std::int64_t limit)
{
    return {path + " has " + std::to_string(size) +
            " bytes, and what is encrypted with a certificate can be decrypted up to " +
            std::to_string(limit) +
            " bytes only: encrypt it with a password, or make several smaller files of it"};
}

CommandPlan planEncryption(const CommandLine &line)
{
    const bool isStreamed = !line.has({"noindef"});
    const std::int64_t limit = isStreamed ? maximumSmimeSize : maximumUnstreamedSmimeSize;
    const char *const input = line.value("in");
    struct stat status {};
    const bool isFound = input && stat(input, &status) == 0;
    if (isFound && S_ISREG(status.st_mode) && status.st_size > limit)
        return tooLarge(input, status.st_size, limit);

    ToolRun run;
    run.arguments.emplace_back(line.command());
    if (!line.has({"stream", "indef", "noindef"})) run.arguments.emplace_back("-stream");
    // The tool takes an error while it reads for the end of the file, and says nothing.
    const bool isFed = isFound && (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode));
    if (isFed) run.input = input;
    const std::vector<std::string> given = line.without(
        [isFed](const Option &option) { return option.name == "out" || (isFed && option.name == "in"); });
    run.arguments.insert(run.arguments.end(), given.begin(), given.end());
    return run;
}

CommandPlan planDecryption(const CommandLine &line)
{
    ToolRun run;
    run.arguments.emplace_back(line.command());
    const std::vector<std::string> given =
        line.without([](const Option &option) { return option.name == "out"; });
    run.arguments.insert(run.arguments.end(), given.begin(), given.end());
    // The tool does not notice when the disk is too full for the last few kilobytes.
    run.collectsOutput = true;
    return run;
}

} // namespace

bool isSmimeCommand(std::span<char *const> arguments)
{
    if (std::string_view(arguments.front()) != "smime") return false;
    const CommandLine line = readCommandLine(arguments);
    const Option *const operation = operationOf(line);
    return operation && (operation->name == "encrypt" || operation->name == "decrypt");
}

CommandPlan planSmimeCommand(std::span<char *const> arguments)
{
    const CommandLine line = readCommandLine(arguments);
    CommandPlan plan = operationOf(line)->name == "encrypt" ? planEncryption(line) : planDecryption(line);
    if (ToolRun *const run = std::get_if<ToolRun>(&plan)) {
        if (const char *const output = line.value("out")) run->output = output;
        run->mayPrint = line.has({"help"});
    }
    return plan;
}
