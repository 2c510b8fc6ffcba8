#include "CipherDecryption.h"

#include "DerivationSearch.h"
#include "PassPhrase.h"
#include "PeekedInput.h"
#include "RunTool.h"
#include "Secret.h"

namespace {

/// Adds options of the tool behind the command's name.
void addOptions(ToolRun &run, const std::vector<std::string> &options)
{
    run.arguments.insert(run.arguments.begin() + 1, options.begin(), options.end());
}

/// Fetches the pass phrase into the secret and lets the tool have it from there, but where only the tool can
/// make something of it. False: it is lost; `problem` says why.
bool fetchOnce(const std::string &source, ToolRun &run, Secret &passPhrase, std::string &problem)
{
    const bool isFetched = fetchPassPhrase(source, passPhrase, problem);
    // A pipe carries one line.
    run.hasPassword = isFetched && passPhrase.text().find('\n') == std::string_view::npos;
    if (run.hasPassword) return true;
    addOptions(run, {"-pass", source});
    return isFetched || isRepeatable(source);
}

/// The same, from wherever the pass phrase is.
bool takePassPhrase(const CipherDecryption &decryption, ToolRun &run, Secret &passPhrase,
                    std::string &problem)
{
    if (run.hasPassword) return true;
    if (decryption.passPhraseSource) return fetchOnce(*decryption.passPhraseSource, run, passPhrase, problem);
    // Without a terminal the tool takes the password from its standard input, in a way of its own.
    if (!hasTerminal()) return true;
    run.hasPassword = askPassPhrase(decryption.cipher, passPhrase);
    if (!run.hasPassword) problem = "no password was given";
    return run.hasPassword;
}

std::optional<KeyDerivation> olderDerivation(const CipherDecryption &decryption, const std::string &head,
                                             const Secret &passPhrase)
{
    const std::string bytes = decryption.isBase64 ? decodeBase64(head) : head;
    const Bytes start{reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size()};
    return findOlderDerivation(decryption.cipher, start, passPhrase.text(), decryption.digest);
}

} // namespace

int decryptWithCipher(const std::string &tool, const CipherDecryption &decryption, Secret &passPhrase)
{
    ToolRun run = decryption.run;
    std::string problem;
    if (!takePassPhrase(decryption, run, passPhrase, problem)) {
        complain(problem);
        return 1;
    }
    const PeekedInput input(decryption.input, run.isOurs);
    if (run.isOurs && !input.problem().empty()) {
        complain(input.problem());
        return 1;
    }
    run.stream = input.stream();
    if (run.isOurs)
        run.openInput = input.descriptor();
    else if (decryption.input && !run.stream) // the tool will say why, where it can't be opened
        addOptions(run, {"-in", *decryption.input});

    const std::optional<KeyDerivation> older = olderDerivation(decryption, input.head(), passPhrase);
    addOptions(run, derivationOptions(older.value_or(decryption.current), decryption.digest.empty()));
    // What the tool says of every such file, although nothing can be done about it any more.
    if (older && older->iterations == 0)
        run.knownLines = {"*** WARNING : deprecated key derivation used.",
                          "Using -iter or -pbkdf2 would be better."};
    return runTool(tool, run, passPhrase);
}
