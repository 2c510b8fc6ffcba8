#include "Base64Source.h"

#include "Fault.h"

#include <array>
#include <string>
#include <string_view>

namespace {

constexpr std::size_t bufferSize = 196'608; // in bytes, what 256 KiB of text stand for

// Above every value of 24 bits, so that it survives being mixed with the other characters of a group.
constexpr std::uint32_t noBase64 = 0x0100'0000;

using Table = std::array<std::uint32_t, 256>;

/// The bits of a character where it is the first, second, third or fourth of its group.
constexpr std::array<Table, 4> makeTables()
{
    constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::array<Table, 4> tables{};
    for (unsigned place = 0; place < tables.size(); ++place) {
        tables[place].fill(noBase64);
        for (std::uint32_t value = 0; value < alphabet.size(); ++value)
            tables[place][static_cast<std::uint8_t>(alphabet[value])] = value << (18 - 6 * place);
    }
    return tables;
}

constexpr std::array<Table, 4> tables = makeTables();

bool isWhite(std::uint8_t character)
{
    return character == '\n' || character == '\r' || character == ' ' || character == '\t';
}

} // namespace

Base64Source::Base64Source(ByteReader &text, Fault &fault)
    : m_text(text), m_fault(fault), m_decoded(bufferSize)
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
    if (m_groupSize != 0 || m_isPadded) return 0;
    const std::size_t groups = std::min(text.size() / 4, (m_decoded.size() - m_size) / 3);
    const std::uint8_t *from = text.data();
    std::uint8_t *to = m_decoded.data() + m_size;
    std::size_t done = 0;
    for (; done < groups; ++done, from += 4, to += 3) {
        const std::uint32_t bits =
            tables[0][from[0]] | tables[1][from[1]] | tables[2][from[2]] | tables[3][from[3]];
        if (bits & noBase64) break;
        to[0] = static_cast<std::uint8_t>(bits >> 16);
        to[1] = static_cast<std::uint8_t>(bits >> 8);
        to[2] = static_cast<std::uint8_t>(bits);
    }
    m_size += done * 3;
    return done * 4;
}

bool Base64Source::decodeOne(std::uint8_t character)
{
    if (isWhite(character)) return true;
    // Whoever gets what came before may find that the message is over.
    if (character == '=') return takePadding();
    const std::uint32_t bits = tables[3][character];
    if (bits == noBase64 || m_isPadded) return reportCharacter();
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
    const bool isPossible = m_groupSize >= 2 && (m_group & ((1U << leftOver) - 1)) == 0;
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
