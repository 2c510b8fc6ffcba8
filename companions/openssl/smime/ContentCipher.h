#pragma once

#include "ByteStreams.h"
#include "CryptoHandles.h"

#include <cstddef>
#include <vector>

class ContentKey;
class Fault;

/// Decrypts the content of a message piece by piece. What returns false has reported why, but for a sink that
/// failed.
class ContentCipher {
public:
    ContentCipher(ByteSink &output, Fault &fault);

    /// Takes up the algorithm, an encoded AlgorithmIdentifier with the initialisation vector.
    [[nodiscard]] bool setAlgorithm(Bytes encoding);
    /// The size of its keys in bytes.
    [[nodiscard]] std::size_t keySize() const;
    [[nodiscard]] bool start(const ContentKey &key);
    [[nodiscard]] bool decrypt(Bytes encrypted);
    /// Checks the padding and gives the sink all that is left.
    [[nodiscard]] bool finish();

private:
    bool flush();

    ByteSink &m_output;
    Fault &m_fault;
    CryptoHandle<EVP_CIPHER> m_cipher;
    CryptoHandle<EVP_CIPHER_CTX> m_context;
    std::vector<std::uint8_t> m_decrypted;
    std::size_t m_size = 0; ///< of what is decrypted and not in the sink
};
