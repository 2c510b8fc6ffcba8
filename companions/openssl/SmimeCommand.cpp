#include "CommandPlan.h"
#include "PassPhrase.h"
#include "PasswordFile.h"
#include "smime/EncryptedMessage.h"
#include "smime/KeyOpener.h"

#include <strings.h>

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

/// Whether it is what the program runs that these tools belong to.
bool isOurs(const CommandLine &line)
{
    return line.worksOnFiles({"aes256", "encrypt", "decrypt", "binary", "in", "out", "inkey"});
}

bool isOneOf(const char *text, std::initializer_list<const char *> words)
{
    return std::ranges::any_of(words, [text](const char *word) { return strcasecmp(text, word) == 0; });
}

FilePair filesOf(const CommandLine &line) { return {line.file("in"), line.file("out"), isOurs(line)}; }

MessageForm formOf(const CommandLine &line, std::string_view option)
{
    const char *const form = line.value(option);
    return form && isOneOf(form, {"DER"}) ? MessageForm::Der : MessageForm::Smime;
}

/// An encryption for the owners of certificates that the front does itself: the system's tool does it on one
/// core.
struct SmimeEncryption {
    FilePair files;
    MessageForm form;
    LibraryCipher cipher;
    std::vector<Certificate> recipients{};
};

/// Whether the front can do itself what the option of an encryption asks for. It writes in pieces always.
bool isOwnEncryption(const Option &option)
{
    constexpr auto names =
        std::to_array<std::string_view>({"encrypt", "binary", "in", "out", "stream", "indef", "noindef"});
    if (option.name == "outform") return option.value && isOneOf(option.value, {"SMIME", "DER"});
    return std::ranges::count(names, option.name) > 0;
}

/// Nothing: it is a matter for the tool, which also tells what is wrong with a certificate.
std::optional<OwnRun> planOwnEncryption(const CommandLine &line)
{
    std::string_view cipher;
    for (const Option &each : line.options()) {
        const bool isCipherName = !each.value && isCipher(each.name);
        if (isCipherName ? !cipher.empty() : !isOwnEncryption(each)) return std::nullopt;
        if (isCipherName) cipher = each.name;
    }
    if (cipher.empty() || !line.has({"binary"})) return std::nullopt;
    const auto own = std::make_shared<SmimeEncryption>(
        SmimeEncryption{filesOf(line), formOf(line, "outform"), LibraryCipher(cipher)});
    std::string ignored;
    for (const char *const operand : line.operands())
        own->recipients.push_back(readCertificate(operand, ignored));
    const bool isPossible = own->cipher.get() && !own->cipher.isLegacy() && !own->recipients.empty() &&
                            std::ranges::all_of(own->recipients, canReceive);
    if (!isPossible) return std::nullopt;
    return [own] {
        return convert(own->files, [&own](ByteSource &input, ByteSink &output, Fault &fault) {
            return encryptMessage(input, own->form, own->recipients, own->cipher.get(), output, fault);
        });
    };
}

ToolRun planToolRun(const CommandLine &line, bool isEncryption)
{
    ToolRun run{{std::string(line.command())}};
    run.files.output = line.file("out");
    run.mayPrint = line.has({"help"});
    if (isEncryption) {
        // A message in one piece (-noindef) can't be decrypted from 1.6 GB on, and the tool says nothing of
        // it.
        if (!line.has({"stream", "indef"})) run.arguments.emplace_back("-stream");
        // The tool takes an error while it reads for the end of the file, and says nothing.
        run.files.isOurs = isOurs(line);
        const char *const input = line.value("in");
        struct stat status {};
        const bool isFound = input && stat(input, &status) == 0;
        if (run.files.isOurs || (isFound && (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode))))
            run.files.input = input;
    }
    line.appendTo(run.arguments, [&](const Option &option) {
        return option.name == "out" || (isEncryption && option.name == "noindef") ||
               (run.files.input && option.name == "in");
    });
    return run;
}

/// A decryption with a certificate's private key that the front does itself: the system's tool holds the
/// whole message in memory and takes none that is larger than 2 GB.
struct SmimeDecryption {
    FilePair files;
    MessageForm form;
    /// The certificate of the only recipient to try. Nothing: all are tried.
    std::optional<std::string> recipient;
    std::string keyFile;
    /// A certificate that was named besides. It only helps to say why a message can't be opened.
    std::optional<std::string> mentionedCertificate{};
    /// Where the key's pass phrase comes from: fetchPassPhrase().
    std::optional<std::string> passPhraseSource{};
    /// The key's pass phrase was on the command line, in the secret that goes with the plan.
    bool hasPassPhrase = false;

    [[nodiscard]] int run(Secret &passPhrase) const
    {
        PrivateKey key;
        Certificate certificate;
        std::string problem;
        if (!readIdentity(passPhrase, key, certificate, problem)) {
            complain(problem);
            return 1;
        }
        return convert(files, [&](ByteSource &input, ByteSink &output, Fault &fault) {
            KeyOpener keys(key, certificate.handle ? &certificate : nullptr,
                           recipient ? KeyOpener::Scope::Certificate : KeyOpener::Scope::All);
            base::BackgroundSink rear(output);
            return decryptMessage(input, form, keys, rear, fault) && rear.finish();
        });
    }

private:
    /// The key with the certificate that tells more of it, where one is known. False: `problem` says why.
    bool readIdentity(Secret &passPhrase, PrivateKey &key, Certificate &certificate,
                      std::string &problem) const
    {
        if (passPhraseSource && !fetchPassPhrase(*passPhraseSource, passPhrase, problem)) return false;
        std::optional<std::string_view> text;
        if (passPhraseSource || hasPassPhrase) text = passPhrase.text();
        key = readPrivateKey(keyFile, text, problem);
        passPhrase.wipe();
        if (!key.handle) return false;
        std::string ignored;
        if (recipient)
            certificate = readCertificate(*recipient, problem);
        else if (mentionedCertificate)
            certificate = readCertificate(*mentionedCertificate, ignored);
        return certificate.handle || !recipient;
    }
};

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

CommandPlan planDecryption(const CommandLine &line, Secret &passPhrase)
{
    if (!line.has({"inkey", "recip"}) || !std::ranges::all_of(line.options(), isOwnAffair))
        return planToolRun(line, false);
    const char *const key = line.value("inkey");
    std::optional<std::string> recipient;
    if (const char *const file = line.value("recip")) recipient = file;
    // The tool looks for the key beside the certificate, too.
    SmimeDecryption decryption{filesOf(line), formOf(line, "inform"), recipient,
                               key ? key : recipient.value_or("")};
    if (!line.operands().empty()) decryption.mentionedCertificate = line.operands().front();
    const Option *const source = line.last({"passin"});
    if (source && isInlinePassPhrase(source->value)) {
        char *const text = source->value + inlinePassPhrase.size();
        decryption.hasPassPhrase = passPhrase.assign(text);
        base::wipe(text, std::strlen(text));
        if (!decryption.hasPassPhrase)
            return Refusal{"the pass phrase of the private key is longer than " +
                           std::to_string(Secret::maximumSize) +
                           " bytes: use a copy of the key that has none"};
    } else if (source) {
        decryption.passPhraseSource = source->value;
    }
    return OwnRun([decryption, &passPhrase] { return decryption.run(passPhrase); });
}

} // namespace

std::optional<CommandPlan> planSmimeCommand(std::span<char *const> arguments, Secret &passPhrase)
{
    const CommandLine line(arguments, optionsWithValue);
    if (line.command() != "smime") return std::nullopt;
    const Option *const operation =
        line.last({"encrypt", "decrypt", "sign", "resign", "verify", "pk7out"}); // the one that counts
    if (operation && operation->name == "decrypt") return planDecryption(line, passPhrase);
    if (!operation || operation->name != "encrypt") return std::nullopt;
    if (std::optional<OwnRun> own = planOwnEncryption(line)) return std::move(*own);
    return planToolRun(line, true);
}
