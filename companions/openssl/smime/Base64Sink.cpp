#include "Base64Sink.h"

#include "Base64.h"

#include <algorithm>

namespace {

constexpr std::size_t mostLines = 4096; // at a time

}

Base64Sink::Base64Sink(ByteSink &text) : m_sink(text), m_text(mostLines * base64::lineSize) {}

bool Base64Sink::write(Bytes bytes)
{
    if (!m_begun.empty()) {
        const Bytes missing = bytes.first(std::min(bytes.size(), base64::lineBytes - m_begun.size()));
        m_begun.insert(m_begun.end(), missing.begin(), missing.end());
        bytes = bytes.subspan(missing.size());
        if (m_begun.size() < base64::lineBytes) return true;
        if (!finish()) return false;
    }
    const Bytes lines = bytes.first(bytes.size() - bytes.size() % base64::lineBytes);
    const Bytes rest = bytes.subspan(lines.size());
    m_begun.assign(rest.begin(), rest.end());
    return encode(lines);
}

bool Base64Sink::finish()
{
    const bool isWritten = encode(m_begun);
    m_begun.clear();
    return isWritten;
}

bool Base64Sink::encode(Bytes bytes)
{
    while (!bytes.empty()) {
        const Bytes piece = bytes.first(std::min(bytes.size(), mostLines * base64::lineBytes));
        if (!m_sink.write({m_text.data(), base64::encode(piece, m_text.data())})) return false;
        bytes = bytes.subspan(piece.size());
    }
    return true;
}
