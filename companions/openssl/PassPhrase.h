#pragma once

#include "Streams.h"

#include <string_view>

/// A password, held in one place only and wiped from there at the end.
class Secret {
public:
    /// The longest password, in bytes, that the tool takes from a file descriptor: it reads one line into a
    /// buffer of 1024 bytes and cuts off the rest of a longer one without a word.
    static constexpr std::size_t maximumSize = 1023;

    /// Takes a copy of `text`. False, and the secret is empty: it is longer than maximumSize.
    [[nodiscard]] bool assign(std::string_view text)
    {
        wipe();
        if (text.size() > maximumSize) return false;
        std::ranges::copy(text, m_bytes.data());
        m_size = text.size();
        return true;
    }
    [[nodiscard]] std::string_view text() const
    {
        return {reinterpret_cast<const char *>(m_bytes.data()), m_size};
    }
    void wipe()
    {
        base::wipe(m_bytes.data(), m_bytes.size());
        m_size = 0;
    }

private:
    base::WipedBytes m_bytes{maximumSize};
    std::size_t m_size = 0;
};

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
