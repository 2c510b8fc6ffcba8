#pragma once

#include "ByteStreams.h"
#include "CipherSink.h"

#include <cstddef>

class ContentKey;
class Fault;

/// Decrypts the content of a message piece by piece. What returns false has reported why.
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
    Fault &m_fault;
    CryptoHandle<EVP_CIPHER> m_cipher;
    CipherSink m_sink;
};
