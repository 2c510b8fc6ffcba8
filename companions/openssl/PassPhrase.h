#pragma once

#include <string>
#include <string_view>

class Secret;

/// Whether `source` tells where a pass phrase is, other than on the command line itself: `env:NAME`,
/// `file:PATH`, `fd:NUMBER` or `stdin`, as in https://docs.openssl.org/3.0/man1/openssl-passphrase-options/
[[nodiscard]] bool isPassPhraseSource(std::string_view source);

/// Whether such a source gives the same again to whoever reads it next.
[[nodiscard]] bool isRepeatable(std::string_view source);

/// Whether there is somebody to ask.
[[nodiscard]] bool hasTerminal();

/// Asks on the terminal, in the tool's words. False: there is no answer, or one that is too long.
[[nodiscard]] bool askPassPhrase(const std::string &cipher, Secret &passPhrase);

/// Takes the pass phrase from such a source: a variable's value, or the first line of what is read. False:
/// `problem` is a whole sentence that says why not.
[[nodiscard]] bool fetchPassPhrase(const std::string &source, Secret &passPhrase, std::string &problem);
