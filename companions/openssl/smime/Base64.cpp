#include "Base64.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t lineBytes = 48;       // that a line of text stands for
constexpr std::size_t lineSize = 65;        // of its text, with the end of the line
constexpr std::size_t mostLines = 4096;     // at a time
constexpr std::size_t bufferSize = 196'608; // in bytes, what 256 KiB of text stand for
constexpr std::size_t groupBytes = 3;
constexpr std::size_t groupSize = 4;

// Above every value of 24 bits, so that it survives being mixed with the other characters of a group.
constexpr std::uint32_t noBase64 = 0x0100'0000;

using Pair = std::array<std::uint8_t, 2>;
using Table = std::array<std::uint32_t, 256>;

/// The two characters of every value of twelve bits.
constexpr std::array<Pair, 4096> makePairs()
{
    std::array<Pair, 4096> pairs{};
    for (std::size_t value = 0; value < pairs.size(); ++value)
        pairs[value] = {static_cast<std::uint8_t>(alphabet[value >> 6]),
                        static_cast<std::uint8_t>(alphabet[value & 63])};
    return pairs;
}

/// The bits of a character where it is the first, second, third or fourth of its group.
constexpr std::array<Table, 4> makeTables()
{
    std::array<Table, 4> tables{};
    for (unsigned place = 0; place < tables.size(); ++place) {
        tables[place].fill(noBase64);
        for (std::uint32_t value = 0; value < alphabet.size(); ++value)
            tables[place][static_cast<std::uint8_t>(alphabet[value])] = value << (18 - 6 * place);
    }
    return tables;
}

constexpr std::array<Pair, 4096> pairs = makePairs();
constexpr std::array<Table, 4> tables = makeTables();

void encodeGroup(const std::uint8_t *bytes, std::uint8_t *text)
{
    const unsigned bits = bytes[0] << 16 | bytes[1] << 8 | bytes[2];
    std::memcpy(text, pairs[bits >> 12].data(), 2);
    std::memcpy(text + 2, pairs[bits & 0xfff].data(), 2);
}

/// Of at most lineBytes.
std::uint8_t *encodeLine(Bytes bytes, std::uint8_t *text)
{
    for (; bytes.size() >= groupBytes; bytes = bytes.subspan(groupBytes), text += groupSize)
        encodeGroup(bytes.data(), text);
    if (!bytes.empty()) {
        std::array<std::uint8_t, groupBytes> last{};
        std::ranges::copy(bytes, last.begin());
        encodeGroup(last.data(), text);
        std::fill(text + 1 + bytes.size(), text + groupSize, std::uint8_t{'='});
        text += groupSize;
    }
    *text++ = '\n';
    return text;
}

/// The text of `bytes`, in lines as the system's tool breaks them; the last one may be shorter, and padded.
/// `text` has room for lineSize for each of them. Returns what it is long.
std::size_t encode(Bytes bytes, std::uint8_t *text)
{
    std::uint8_t *to = text;
    for (; bytes.size() >= lineBytes; bytes = bytes.subspan(lineBytes))
        to = encodeLine(bytes.first<lineBytes>(), to);
    if (!bytes.empty()) to = encodeLine(bytes, to);
    return static_cast<std::size_t>(to - text);
}

/// How far decode() came.
struct Progress {
    std::size_t text = 0;
    std::size_t bytes = 0;
};

/// Decodes whole groups of four characters, and passes over line feeds between them, until it comes upon
/// anything else, or the room is used up.
Progress decode(Bytes text, std::span<std::uint8_t> into)
{
    const std::uint8_t *from = text.data();
    const std::uint8_t *const lastGroup = from + text.size() - std::min(text.size(), groupSize);
    std::uint8_t *to = into.data();
    const std::uint8_t *const lastRoom = to + into.size() - std::min(into.size(), groupBytes);
    if (text.size() < groupSize || into.size() < groupBytes) return {};
    while (from <= lastGroup && to <= lastRoom) {
        const std::uint32_t bits =
            tables[0][from[0]] | tables[1][from[1]] | tables[2][from[2]] | tables[3][from[3]];
        if (bits & noBase64) {
            if (*from != '\n') break;
            ++from;
            continue;
        }
        to[0] = static_cast<std::uint8_t>(bits >> 16);
        to[1] = static_cast<std::uint8_t>(bits >> 8);
        to[2] = static_cast<std::uint8_t>(bits);
        from += groupSize;
        to += groupBytes;
    }
    return {static_cast<std::size_t>(from - text.data()), static_cast<std::size_t>(to - into.data())};
}

/// The six bits that a character stands for; above 63: none.
std::uint8_t valueOf(std::uint8_t character)
{
    return static_cast<std::uint8_t>(std::min<std::uint32_t>(tables[3][character], 64));
}

bool isWhite(std::uint8_t character)
{
    return character == '\n' || character == '\r' || character == ' ' || character == '\t';
}

} // namespace

Base64Sink::Base64Sink(ByteSink &text) : m_sink(text), m_text(mostLines * lineSize) {}

bool Base64Sink::write(Bytes bytes)
{
    if (!m_begun.empty()) {
        const Bytes missing = bytes.first(std::min(bytes.size(), lineBytes - m_begun.size()));
        m_begun.insert(m_begun.end(), missing.begin(), missing.end());
        bytes = bytes.subspan(missing.size());
        if (m_begun.size() < lineBytes) return true;
        if (!finish()) return false;
    }
    const Bytes lines = bytes.first(bytes.size() - bytes.size() % lineBytes);
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
        const Bytes piece = bytes.first(std::min(bytes.size(), mostLines * lineBytes));
        if (!m_sink.write({m_text.data(), ::encode(piece, m_text.data())})) return false;
        bytes = bytes.subspan(piece.size());
    }
    return true;
}

Base64Source::Base64Source(ByteReader &text, Fault &fault, Rules rules)
    : m_text(text), m_fault(fault), m_rules(rules), m_decoded(bufferSize)
{
}

Bytes Base64Source::read()
{
    m_size = 0;
    while (m_size + 3 <= m_decoded.size()) {
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

/// Decodes whole groups as long as nothing else comes, which is nearly always. Returns the size of their
/// text.
std::size_t Base64Source::decodeWhole(Bytes text)
{
    if (m_groupSize != 0 || m_isPadded || m_isOutside) return 0;
    const auto [size, decoded] = decode(text, std::span(m_decoded).subspan(m_size));
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
    const std::uint8_t bits = valueOf(character);
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
