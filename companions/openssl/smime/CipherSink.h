#pragma once

#include "ByteReader.h"
#include "CryptoHandles.h"

/// Encrypts or decrypts what is written to it, and hands it on.
class CipherSink final : public ByteSink {
public:
    explicit CipherSink(ByteSink &next);

    /// To be set up before anything is written; null: there is no memory for it.
    [[nodiscard]] EVP_CIPHER_CTX *context() const { return m_context.get(); }

    /// False: the cipher refuses it, or the other sink failed.
    [[nodiscard]] bool write(Bytes bytes) override;
    /// Hands on the last block. False too where it can't be decrypted: its padding is wrong, or it isn't
    /// whole.
    [[nodiscard]] bool finish();

private:
    bool handOn(int size);

    ByteSink &m_next;
    CryptoHandle<EVP_CIPHER_CTX> m_context;
    base::WipedBytes m_bytes;
};
