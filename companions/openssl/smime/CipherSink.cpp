#include "CipherSink.h"

#include <algorithm>
#include <openssl/err.h>

namespace {

constexpr std::size_t pieceSize = 262'144; // in bytes

}

CipherSink::CipherSink(ByteSink &next)
    : m_next(next), m_context(EVP_CIPHER_CTX_new()), m_bytes(pieceSize + EVP_MAX_BLOCK_LENGTH)
{
}

bool CipherSink::write(Bytes bytes)
{
    while (!bytes.empty()) {
        const Bytes piece = bytes.first(std::min(bytes.size(), pieceSize));
        int size = 0;
        if (EVP_CipherUpdate(m_context.get(), m_bytes.data(), &size, piece.data(),
                             static_cast<int>(piece.size())) <= 0 ||
            !handOn(size))
            return false;
        bytes = bytes.subspan(piece.size());
    }
    return true;
}

bool CipherSink::finish()
{
    int size = 0;
    const bool isWhole = EVP_CipherFinal_ex(m_context.get(), m_bytes.data(), &size) > 0;
    ERR_clear_error();
    return isWhole && handOn(size);
}

bool CipherSink::handOn(int size)
{
    return size == 0 || m_next.write({m_bytes.data(), static_cast<std::size_t>(size)});
}
