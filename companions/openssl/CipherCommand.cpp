#include "CipherCommand.h"

#include "CipherName.h"
#include "CommandLine.h"
#include "Secret.h"

#include <array>
#include <cstring>

namespace {

// https://docs.openssl.org/master/man1/openssl-enc/
constexpr auto optionsWithValue = std::to_array<std::string_view>(
    {"in",        "out",     "pass",    "k",        "kfile",   "K",         "S",        "iv",
     "md",        "iter",    "bufsize", "engine",   "rand",    "writerand", "provider", "provider-path",
     "propquery", "saltlen", "skeyopt", "skeymgmt", "skeyuuid"});

// In bytes. The tool reads 8 KiB at a time by itself; more than this saves nothing worth having.
constexpr std::string_view bufferSize = "262144";

constexpr std::string_view inlinePassword = "pass:";

CommandLine readCommandLine(std::span<char *const> arguments) { return {arguments, optionsWithValue}; }

/// The cipher of the command line; empty where it names none.
std::string_view cipherOf(const CommandLine &line)
{
    if (isCipher(line.command())) return line.command();
    if (line.command() != "enc") return {};
    std::string_view cipher;
    for (const Option &option : line.options())
        if (!option.value && isCipher(option.name)) cipher = option.name;
    return cipher;
}

/// The password that this option spells out, in the memory of the argument list; null where it spells out
/// none.
char *spelledPassword(const Option &option)
{
    if (!option.value) return nullptr;
    if (option.name == "k") return option.value;
    const bool isInline = option.name == "pass" && std::string_view(option.value).starts_with(inlinePassword);
    return isInline ? option.value + inlinePassword.size() : nullptr;
}

bool isPasswordOption(const Option &option)
{
    return option.name == "k" || option.name == "kfile" || option.name == "pass";
}

enum class PasswordState { NotSpelled, Taken, TooLong, HoldsLineBreak };

/// Moves the password out of the arguments, where one that counts is spelled out; wipes all that are.
PasswordState takePassword(const CommandLine &line, Secret &password)
{
    PasswordState state = PasswordState::NotSpelled;
    // For the tool, `-k` and `-kfile` go before `-pass`, wherever they stand.
    const Option *effective = line.last({"k", "kfile"});
    if (!effective) effective = line.last({"pass"});
    if (const char *const text = effective ? spelledPassword(*effective) : nullptr) {
        state = password.assign(text) ? PasswordState::Taken : PasswordState::TooLong;
        if (std::strchr(text, '\n')) state = PasswordState::HoldsLineBreak;
    }
    for (const Option &option : line.options())
        if (char *const text = spelledPassword(option)) wipeMemory(text, std::strlen(text));
    return state;
}

/// Nothing is added to a derivation that the caller chose: another count would give another key.
void addKeyDerivation(const CommandLine &line, const KeyDerivation &derivation,
                      std::vector<std::string> &arguments)
{
    if (line.has({"pbkdf2", "iter"})) return;
    arguments.insert(arguments.end(), {"-pbkdf2", "-iter", std::to_string(derivation.iterations)});
    if (!line.has({"md"})) arguments.insert(arguments.end(), {"-md", std::string(derivation.digest)});
}

void addProviders(const CommandLine &line, std::string_view cipher, std::vector<std::string> &arguments)
{
    if (!needsLegacyProvider(cipher) || line.has({"provider", "provider-path"})) return;
    // Naming one provider keeps the tool from loading the default one, which has the digests.
    arguments.insert(arguments.end(), {"-provider", "legacy", "-provider", "default"});
}

} // namespace

bool isCipherCommand(std::span<char *const> arguments)
{
    return !cipherOf(readCommandLine(arguments)).empty();
}

CommandPlan planCipherCommand(std::span<char *const> arguments, Secret &password,
                              const KeyDerivation &derivation)
{
    const CommandLine line = readCommandLine(arguments);
    const PasswordState passwordState = takePassword(line, password);
    if (passwordState == PasswordState::HoldsLineBreak)
        return Refusal{"the password holds a line break, and the system's tool reads one line only: "
                       "use a password without line breaks"};
    if (passwordState == PasswordState::TooLong)
        return Refusal{"the password is longer than " + std::to_string(Secret::maximumSize) +
                       " bytes, the most that the system's tool reads: use a shorter one"};

    ToolRun run;
    run.arguments.emplace_back(line.command());
    addKeyDerivation(line, derivation, run.arguments);
    addProviders(line, cipherOf(line), run.arguments);
    if (!line.has({"bufsize"}))
        run.arguments.insert(run.arguments.end(), {"-bufsize", std::string(bufferSize)});

    run.hasPassword = passwordState == PasswordState::Taken;
    const std::vector<std::string> given = line.without([&run](const Option &option) {
        return option.name == "out" || spelledPassword(option) ||
               (run.hasPassword && isPasswordOption(option));
    });
    run.arguments.insert(run.arguments.end(), given.begin(), given.end());
    if (const char *const output = line.value("out")) run.output = output;
    run.mayPrint = line.has({"p", "P", "v", "debug", "help", "list", "ciphers"});
    return run;
}
