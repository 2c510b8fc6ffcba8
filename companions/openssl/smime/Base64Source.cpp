#include "Base64Source.h"

#include "Base64.h"
#include "Fault.h"

#include <span>
#include <string>

namespace {

constexpr std::size_t bufferSize = 196'608; // in bytes, what 256 KiB of text stand for

bool isWhite(std::uint8_t character)
{
    return character == '\n' || character == '\r' || character == ' ' || character == '\t';
}

} // namespace

Base64Source::Base64Source(ByteReader &text, Fault &fault, Rules rules)
    : m_text(text), m_fault(fault), m_rules(rules), m_decoded(bufferSize)
{
}

Bytes Base64Source::read()
{
    m_size = 0;
    while (!isFull()) {
        const Bytes text = m_text.available();
        if (text.empty()) {
            if (m_size == 0) finish();
            break;
        }
        if (const std::size_t whole = decodeWhole(text)) {
            m_text.skip(whole);
        } else {
            if (!decodeOne(text.front())) break;
            m_text.skip(1);
        }
    }
    return {m_decoded.data(), m_size};
}

bool Base64Source::isFull() const { return m_size + 3 > m_decoded.size(); }

/// Decodes whole groups as long as nothing else comes, which is nearly always. Returns the size of their
/// text.
std::size_t Base64Source::decodeWhole(Bytes text)
{
    if (m_groupSize != 0 || m_isPadded || m_isOutside) return 0;
    const auto [size, decoded] = base64::decode(text, std::span(m_decoded).subspan(m_size));
    m_size += decoded;
    m_hasBegun = m_hasBegun || decoded > 0;
    if (size > 0) m_isAtLineStart = text[size - 1] == '\n';
    return size;
}

bool Base64Source::decodeOne(std::uint8_t character)
{
    if (m_isAtLineStart && character == '-' && m_rules == Rules::OfTool) m_isOutside = true;
    m_isAtLineStart = character == '\n';
    if (m_isOutside) {
        // The text begins behind such a line, or has ended before it.
        m_isOutside = character != '\n' || m_hasBegun;
        return true;
    }
    if (isWhite(character)) return true;
    m_hasBegun = true;
    // Whoever gets what came before may find that the message is over.
    if (character == '=') return takePadding();
    const std::uint8_t bits = base64::valueOf(character);
    if (bits > 63 || m_isPadded) return reportCharacter();
    m_group = m_group << 6 | bits;
    if (++m_groupSize == 4) put(3);
    return true;
}

bool Base64Source::takePadding()
{
    if (m_paddingLeft > 0) {
        --m_paddingLeft;
        return true;
    }
    // Four bits are left over from two characters, two from three.
    const unsigned leftOver = m_groupSize == 2 ? 4 : 2;
    const bool isClean = (m_group & ((1U << leftOver) - 1)) == 0 || m_rules == Rules::OfTool;
    const bool isPossible = m_groupSize >= 2 && isClean;
    if (!isPossible || m_isPadded) return reportCharacter();
    m_paddingLeft = 3 - m_groupSize;
    m_isPadded = true;
    const unsigned count = m_groupSize - 1;
    m_group <<= 6 * (4 - m_groupSize);
    put(count);
    return true;
}

void Base64Source::put(unsigned count)
{
    for (unsigned i = 0; i < count; ++i)
        m_decoded[m_size++] = static_cast<std::uint8_t>(m_group >> (16 - 8 * i));
    m_group = 0;
    m_groupSize = 0;
}

bool Base64Source::finish()
{
    if (m_groupSize == 0 && m_paddingLeft == 0) return true;
    return m_expectsEnd ? m_fault.reportRubbish() : m_fault.reportCutShort();
}

bool Base64Source::reportCharacter()
{
    if (m_size > 0) return false;
    if (m_expectsEnd || m_isPadded) return m_fault.reportRubbish();
    return m_fault.report("is damaged: its byte " + std::to_string(m_text.position() + 1) +
                          " is none of a base64 text");
}
