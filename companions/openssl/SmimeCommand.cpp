#include "SmimeCommand.h"

#include "CipherName.h"
#include "CommandLine.h"
#include "PassPhrase.h"
#include "Secret.h"
#include "WipedBytes.h"
#include "smime/MessageEncryption.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <strings.h>
#include <sys/stat.h>

namespace {

// https://docs.openssl.org/master/man1/openssl-smime/
constexpr auto optionsWithValue = std::to_array<std::string_view>(
    {"in",        "inform",        "out",      "outform",   "inkey",           "keyform",      "engine",
     "config",    "passin",        "md",       "signer",    "content",         "certfile",     "recip",
     "to",        "from",          "subject",  "CApath",    "CAfile",          "CAstore",      "rand",
     "writerand", "policy",        "purpose",  "attime",    "verify_name",     "verify_depth", "auth_level",
     "verify_ip", "provider-path", "provider", "propquery", "verify_hostname", "verify_email"});

constexpr std::string_view inlinePassPhrase = "pass:";

bool isInlinePassPhrase(std::string_view source) { return source.starts_with(inlinePassPhrase); }

CommandLine readCommandLine(std::span<char *const> arguments) { return {arguments, optionsWithValue}; }

/// The option of the operation that counts, the last one; null where there is none.
const Option *operationOf(const CommandLine &line)
{
    return line.last({"encrypt", "decrypt", "sign", "resign", "verify", "pk7out"});
}

/// Whether it is what the program runs that these tools belong to.
bool isOurs(const CommandLine &line)
{
    return line.worksOnFiles({"aes256", "encrypt", "decrypt", "binary", "in", "out", "inkey"});
}

bool isOneOf(const char *text, std::initializer_list<const char *> words)
{
    return std::ranges::any_of(words, [text](const char *word) { return strcasecmp(text, word) == 0; });
}

std::optional<std::string> valueOf(const CommandLine &line, std::string_view name)
{
    const char *const value = line.value(name);
    return value ? std::optional<std::string>(value) : std::nullopt;
}

FilePair filesOf(const CommandLine &line) { return {line.file("in"), line.file("out"), isOurs(line)}; }

MessageForm formOf(const CommandLine &line, std::string_view option)
{
    const char *const form = line.value(option);
    return form && isOneOf(form, {"DER"}) ? MessageForm::Der : MessageForm::Smime;
}

/// Whether the front can do itself what the option of an encryption asks for. It writes in pieces always.
bool isOwnEncryption(const Option &option)
{
    constexpr auto names =
        std::to_array<std::string_view>({"encrypt", "binary", "in", "out", "stream", "indef", "noindef"});
    if (option.name == "outform") return option.value && isOneOf(option.value, {"SMIME", "DER"});
    return std::ranges::count(names, option.name) > 0;
}

/// Nothing: it is a matter for the tool, which also tells what is wrong with a certificate.
std::optional<SmimeEncryption> planOwnEncryption(const CommandLine &line)
{
    std::string_view cipher;
    for (const Option &each : line.options()) {
        const bool isCipherName = !each.value && isCipher(each.name);
        if (isCipherName ? !cipher.empty() : !isOwnEncryption(each)) return std::nullopt;
        if (isCipherName) cipher = each.name;
    }
    if (cipher.empty() || needsLegacyProvider(cipher) || !line.has({"binary"})) return std::nullopt;
    SmimeEncryption encryption{filesOf(line), formOf(line, "outform"), LibraryCipher(cipher), {}};
    std::string ignored;
    for (const char *const operand : line.operands())
        encryption.recipients.push_back(readCertificate(operand, ignored));
    const bool isPossible = encryption.cipher.get() && !encryption.recipients.empty() &&
                            std::ranges::all_of(encryption.recipients, canReceive);
    return isPossible ? std::optional(std::move(encryption)) : std::nullopt;
}

CommandPlan planEncryption(const CommandLine &line)
{
    if (std::optional<SmimeEncryption> own = planOwnEncryption(line)) return std::move(*own);
    const char *const input = line.value("in");
    struct stat status {};
    const bool isFound = input && stat(input, &status) == 0;

    ToolRun run;
    run.arguments.emplace_back(line.command());
    // A message in one piece (-noindef) can't be decrypted from 1.6 GB on, and the tool says nothing of it.
    if (!line.has({"stream", "indef"})) run.arguments.emplace_back("-stream");
    // The tool takes an error while it reads for the end of the file, and says nothing.
    run.isOurs = isOurs(line);
    const bool isFed = run.isOurs || (isFound && (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode)));
    if (isFed) run.input = input;
    const std::vector<std::string> given = line.without([isFed](const Option &option) {
        return option.name == "out" || option.name == "noindef" || (isFed && option.name == "in");
    });
    run.arguments.insert(run.arguments.end(), given.begin(), given.end());
    return run;
}

CommandPlan planToolDecryption(const CommandLine &line)
{
    ToolRun run;
    run.arguments.emplace_back(line.command());
    const std::vector<std::string> given =
        line.without([](const Option &option) { return option.name == "out"; });
    run.arguments.insert(run.arguments.end(), given.begin(), given.end());
    return run;
}

/// Whether the front can do itself what the option asks for.
bool isOwnAffair(const Option &option)
{
    const std::string_view name = option.name;
    if (name == "decrypt" || name == "binary") return true;
    // The message tells its cipher itself; the tool takes the option and does nothing with it.
    if (!option.value) return isCipher(name);
    if (name == "inform") return isOneOf(option.value, {"SMIME", "DER"});
    if (name == "keyform") return isOneOf(option.value, {"PEM", "DER"});
    if (name == "passin") return isInlinePassPhrase(option.value) || isPassPhraseSource(option.value);
    return name == "in" || name == "out" || name == "inkey" || name == "recip";
}

/// Moves a pass phrase that is spelled out to `passPhrase`. False: it is too long for that.
bool takePassPhrase(const CommandLine &line, SmimeDecryption &decryption, Secret &passPhrase)
{
    const Option *const option = line.last({"passin"});
    if (!option) return true;
    if (!isInlinePassPhrase(option->value)) {
        decryption.passPhraseSource = option->value;
        return true;
    }
    char *const text = option->value + inlinePassPhrase.size();
    decryption.hasPassPhrase = passPhrase.assign(text);
    base::wipe(text, std::strlen(text));
    return decryption.hasPassPhrase;
}

CommandPlan planOwnDecryption(const CommandLine &line, Secret &passPhrase)
{
    SmimeDecryption decryption;
    decryption.files = filesOf(line);
    decryption.form = formOf(line, "inform");
    decryption.recipient = valueOf(line, "recip");
    // The tool looks for the key beside the certificate, too.
    decryption.keyFile = valueOf(line, "inkey").value_or(decryption.recipient.value_or(""));
    const std::span<char *const> operands = line.operands();
    if (!operands.empty()) decryption.mentionedCertificate = operands.front();
    if (!takePassPhrase(line, decryption, passPhrase))
        return Refusal{"the pass phrase of the private key is longer than " +
                       std::to_string(Secret::maximumSize) + " bytes: use a copy of the key that has none"};
    return decryption;
}

CommandPlan planDecryption(const CommandLine &line, Secret &passPhrase)
{
    const bool hasKey = line.has({"inkey", "recip"});
    const bool isOurs = hasKey && std::ranges::all_of(line.options(), isOwnAffair);
    return isOurs ? planOwnDecryption(line, passPhrase) : planToolDecryption(line);
}

} // namespace

bool isSmimeCommand(std::span<char *const> arguments)
{
    if (std::string_view(arguments.front()) != "smime") return false;
    const CommandLine line = readCommandLine(arguments);
    const Option *const operation = operationOf(line);
    return operation && (operation->name == "encrypt" || operation->name == "decrypt");
}

CommandPlan planSmimeCommand(std::span<char *const> arguments, Secret &passPhrase)
{
    const CommandLine line = readCommandLine(arguments);
    const bool isEncryption = operationOf(line)->name == "encrypt";
    CommandPlan plan = isEncryption ? planEncryption(line) : planDecryption(line, passPhrase);
    if (ToolRun *const run = std::get_if<ToolRun>(&plan)) {
        run->output = line.file("out");
        run->mayPrint = line.has({"help"});
    }
    return plan;
}
