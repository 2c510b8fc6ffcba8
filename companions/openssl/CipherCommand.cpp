#include "CipherCommand.h"

#include "CipherName.h"
#include "CommandLine.h"
#include "PassPhrase.h"
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

/// Whether the caller leaves it open how the key is made. Nothing is added to his choice: another count would
/// give another key.
bool leavesDerivationOpen(const CommandLine &line) { return !line.has({"pbkdf2", "iter"}); }

void append(std::vector<std::string> &arguments, const std::vector<std::string> &more)
{
    arguments.insert(arguments.end(), more.begin(), more.end());
}

void addProviders(const CommandLine &line, std::string_view cipher, std::vector<std::string> &arguments)
{
    if (!needsLegacyProvider(cipher) || line.has({"provider", "provider-path"})) return;
    // Naming one provider keeps the tool from loading the default one, which has the digests.
    append(arguments, {"-provider", "legacy", "-provider", "default"});
}

/// Whether this decrypts a file as the tool writes it, beginning with its salt, and the key is to be found.
bool isOpenDecryption(const CommandLine &line)
{
    const Option *const direction = line.last({"e", "d"});
    // With `-kfile` the tool has rules of its own for what belongs to the password.
    return direction && direction->name == "d" && leavesDerivationOpen(line) &&
           !line.has(
               {"K", "S", "iv", "nosalt", "saltlen", "skeyopt", "kfile", "z", "help", "list", "ciphers"}) &&
           line.operands().empty();
}

/// Where `-pass` says that the password is; nothing where it is spelled out, or no such place.
std::optional<std::string> passPhraseSource(const CommandLine &line)
{
    const char *const source = line.value("pass");
    return source && isPassPhraseSource(source) ? std::optional<std::string>(source) : std::nullopt;
}

/// Whether it is what the program runs that these tools belong to: `CIPHER [-d] -a [-salt] -in … -out … -pass
/// pass:…`.
bool isOurs(const CommandLine &line)
{
    const Option *const pass = line.last({"pass"});
    return isCipher(line.command()) && line.has({"a"}) && pass && spelledPassword(*pass) &&
           line.operands().empty() && line.worksOnFiles({"d", "a", "salt", "in", "out", "pass"});
}

/// All but the caller's own options.
ToolRun planRun(const CommandLine &line, const std::vector<std::string> &derivation = {})
{
    ToolRun run;
    run.arguments.emplace_back(line.command());
    append(run.arguments, derivation);
    addProviders(line, cipherOf(line), run.arguments);
    if (!line.has({"bufsize"})) append(run.arguments, {"-bufsize", std::string(bufferSize)});
    if (const char *const output = line.value("out")) run.output = output;
    run.isOurs = isOurs(line);
    run.mayPrint = line.has({"p", "P", "v", "debug", "help", "list", "ciphers"});
    return run;
}

/// The caller's own options but those for the result, for passwords that are spelled out, and those that
/// `isOther` names.
template <typename Predicate>
void addGiven(const CommandLine &line, Predicate isOther, ToolRun &run)
{
    append(run.arguments, line.without([&isOther](const Option &option) {
        return option.name == "out" || spelledPassword(option) || isOther(option);
    }));
}

ToolRun planToolRun(const CommandLine &line, const KeyDerivation &derivation, bool hasPassword)
{
    const bool isOpen = leavesDerivationOpen(line);
    ToolRun run =
        planRun(line, isOpen ? derivationOptions(derivation, !line.has({"md"})) : std::vector<std::string>());
    run.hasPassword = hasPassword;
    if (run.isOurs) run.input = line.value("in");
    const auto isOther = [&run](const Option &each) {
        return (run.input && each.name == "in") || (run.hasPassword && isPasswordOption(each));
    };
    addGiven(line, isOther, run);
    return run;
}

CipherDecryption planDecryption(const CommandLine &line, const KeyDerivation &derivation, bool hasPassword)
{
    CipherDecryption decryption;
    decryption.run = planRun(line);
    decryption.run.hasPassword = hasPassword;
    addGiven(
        line, [](const Option &each) { return each.name == "in" || isPasswordOption(each); }, decryption.run);
    decryption.cipher = cipherOf(line);
    const char *const input = line.value("in");
    if (input && std::string_view(input) != "-") decryption.input = input;
    decryption.isBase64 = line.has({"a", "base64"});
    if (const char *const digest = line.value("md")) decryption.digest = digest;
    if (!hasPassword) decryption.passPhraseSource = passPhraseSource(line);
    decryption.current = derivation;
    return decryption;
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

    const bool hasPassword = passwordState == PasswordState::Taken;
    const bool isKnown = hasPassword || passPhraseSource(line) || !line.has({"k", "pass"});
    if (isKnown && isOpenDecryption(line)) return planDecryption(line, derivation, hasPassword);
    return planToolRun(line, derivation, hasPassword);
}
