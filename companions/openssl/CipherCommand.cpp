#include "CommandPlan.h"
#include "PassPhrase.h"
#include "PasswordFile.h"

#include <charconv>

namespace {

// https://docs.openssl.org/master/man1/openssl-enc/
constexpr auto optionsWithValue = std::to_array<std::string_view>(
    {"in",        "out",     "pass",    "k",        "kfile",   "K",         "S",        "iv",
     "md",        "iter",    "bufsize", "engine",   "rand",    "writerand", "provider", "provider-path",
     "propquery", "saltlen", "skeyopt", "skeymgmt", "skeyuuid"});

// In bytes. The tool reads 8 KiB at a time by itself; more than this saves nothing worth having.
constexpr std::string_view bufferSize = "262144";

constexpr std::string_view inlinePassword = "pass:";

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

/// Moves the password out of the arguments, where one that counts is spelled out; wipes all that are. False:
/// `problem` is a sentence that says why it can't be used; without one there was none.
bool takePassword(const CommandLine &line, Secret &password, std::string &problem)
{
    bool isTaken = false;
    // For the tool, `-k` and `-kfile` go before `-pass`, wherever they stand.
    const Option *effective = line.last({"k", "kfile"});
    if (!effective) effective = line.last({"pass"});
    if (const char *const text = effective ? spelledPassword(*effective) : nullptr) {
        isTaken = password.assign(text) && !std::strchr(text, '\n');
        if (std::strchr(text, '\n'))
            problem = "the password holds a line break, and the system's tool reads one line only: "
                      "use a password without line breaks";
        else if (!isTaken)
            problem = "the password is longer than " + std::to_string(Secret::maximumSize) +
                      " bytes, the most that the system's tool reads: use a shorter one";
    }
    for (const Option &option : line.options())
        if (char *const text = spelledPassword(option)) base::wipe(text, std::strlen(text));
    return isTaken;
}

/// Whether the caller leaves it open how the key is made. Nothing is added to his choice: another count would
/// give another key.
bool leavesDerivationOpen(const CommandLine &line) { return !line.has({"pbkdf2", "iter"}); }

void append(std::vector<std::string> &arguments, const std::vector<std::string> &more)
{
    arguments.insert(arguments.end(), more.begin(), more.end());
}

/// Whether it is what the program runs that these tools belong to: `CIPHER [-d] -a [-salt] -in … -out … -pass
/// pass:…`.
bool isOurs(const CommandLine &line)
{
    const Option *const pass = line.last({"pass"});
    return isCipher(line.command()) && line.has({"a"}) && pass && spelledPassword(*pass) &&
           line.operands().empty() && line.worksOnFiles({"d", "a", "salt", "in", "out", "pass"});
}

/// All of it for the tool, with what the caller left open.
ToolRun planToolRun(const CommandLine &line, bool hasPassword)
{
    const auto &[iterations, digest] = currentKeyDerivation;
    ToolRun run{{std::string(line.command())}};
    if (leavesDerivationOpen(line)) append(run.arguments, {"-pbkdf2", "-iter", std::to_string(iterations)});
    if (leavesDerivationOpen(line) && !line.has({"md"})) append(run.arguments, {"-md", std::string(digest)});
    // Naming one provider keeps the tool from loading the default one, which has the digests.
    if (LibraryCipher(cipherOf(line)).isLegacy() && !line.has({"provider", "provider-path"}))
        append(run.arguments, {"-provider", "legacy", "-provider", "default"});
    if (!line.has({"bufsize"})) append(run.arguments, {"-bufsize", std::string(bufferSize)});
    run.files.isOurs = isOurs(line);
    run.hasPassword = hasPassword;
    run.files.output = line.file("out");
    if (run.files.isOurs) run.files.input = line.file("in");
    run.mayPrint = line.has({"p", "P", "v", "debug", "help", "list", "ciphers"});
    line.appendTo(run.arguments, [&](const Option &each) {
        return each.name == "out" || spelledPassword(each) || (run.files.input && each.name == "in") ||
               (hasPassword && (each.name == "k" || each.name == "kfile" || each.name == "pass"));
    });
    return run;
}

/// Whether the front knows all that these options mean.
bool isRegular(const CommandLine &line)
{
    constexpr auto switches =
        std::to_array<std::string_view>({"e", "d", "a", "base64", "salt", "pbkdf2", "nopad"});
    constexpr auto values =
        std::to_array<std::string_view>({"in", "out", "pass", "k", "md", "iter", "bufsize"});
    const bool isNamed = line.command() == "enc"; // by an option
    return line.operands().empty() && std::ranges::all_of(line.options(), [&](const Option &each) {
               if (each.value) return std::ranges::count(values, each.name) > 0;
               return std::ranges::count(switches, each.name) > 0 || (isNamed && isCipher(each.name));
           });
}

/// Nothing: the caller wants what the front doesn't know.
std::optional<std::vector<KeyDerivation>> derivationsOf(const CommandLine &line, bool isDecryption)
{
    const char *const digest = line.value("md");
    if (digest && !fetchDigest(digest)) return std::nullopt;
    std::vector<KeyDerivation> all;
    if (!leavesDerivationOpen(line)) {
        const std::string_view count = line.has({"iter"}) ? line.value("iter") : "10000";
        int iterations = 0;
        const auto [end, error] = std::from_chars(count.begin(), count.end(), iterations);
        if (error != std::errc() || end != count.end() || iterations < 1) return std::nullopt;
        all.push_back({static_cast<unsigned>(iterations), "sha256"});
    } else {
        if (isDecryption) all.assign(olderKeyDerivations.begin(), olderKeyDerivations.end());
        all.push_back(currentKeyDerivation);
    }
    for (KeyDerivation &each : all)
        if (digest) each.digest = digest;
    return all;
}

/// What the front does itself with the password.
struct CipherRun {
    FilePair files;
    bool isDecryption;
    PasswordFile file;
};

/// Nothing: it is a matter for the tool.
std::optional<CipherRun> planOwnRun(const CommandLine &line)
{
    const Option *const direction = line.last({"e", "d"});
    const bool isDecryption = direction && direction->name == "d";
    if (!isRegular(line) || (line.has({"nopad"}) && !isDecryption)) return std::nullopt;
    LibraryCipher cipher(cipherOf(line));
    auto derivations = derivationsOf(line, isDecryption);
    if (!cipher.get() || !derivations) return std::nullopt;
    return CipherRun{
        {line.file("in"), line.file("out"), isOurs(line)},
        isDecryption,
        {std::move(cipher), line.has({"a", "base64"}), !line.has({"nopad"}), std::move(*derivations)}};
}

enum class Finding { Found, NotFound, OfTool };

/// Gets a password that the arguments don't spell out from wherever it is.
Finding findPassword(const CommandLine &line, bool isDecryption, Secret &password, std::string &problem)
{
    const char *const source = line.value("pass");
    if (source && isPassPhraseSource(source)) {
        if (fetchPassPhrase(source, password, problem)) return Finding::Found;
        // Some that the tool takes are too long for a pipe to it.
        return isRepeatable(source) ? Finding::OfTool : Finding::NotFound;
    }
    // Without a terminal the tool takes the password from its standard input, in a way of its own. With one
    // it asks twice before it encrypts.
    if (line.has({"pass", "k"}) || !isDecryption || !hasTerminal()) return Finding::OfTool;
    problem = "no password was given";
    return askPassPhrase(std::string(cipherOf(line)), password) ? Finding::Found : Finding::NotFound;
}

} // namespace

std::optional<CommandPlan> planCipherCommand(std::span<char *const> arguments, Secret &password)
{
    const CommandLine line(arguments, optionsWithValue);
    if (cipherOf(line).empty()) return std::nullopt;
    std::string problem;
    const bool isTaken = takePassword(line, password, problem);
    if (!problem.empty()) return Refusal{problem};
    std::optional<CipherRun> run = planOwnRun(line);
    if (!run) return planToolRun(line, isTaken);
    const Finding finding =
        isTaken ? Finding::Found : findPassword(line, run->isDecryption, password, problem);
    if (finding == Finding::NotFound) return Refusal{problem};
    if (finding == Finding::OfTool) return planToolRun(line, false);
    return OwnRun([run = std::make_shared<CipherRun>(std::move(*run)), &password] {
        const auto conversion = run->isDecryption ? decryptFile : encryptFile;
        return convert(run->files, [&](ByteSource &input, ByteSink &output, Fault &fault) {
            return conversion(run->file, password.text(), input, output, fault);
        });
    });
}
