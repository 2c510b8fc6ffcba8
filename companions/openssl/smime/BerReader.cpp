#include "BerReader.h"

#include <algorithm>
#include <limits>
#include <string>

namespace {

// Enough for a message inside any that mail programs write, and too little to fill the stack.
constexpr std::size_t maximumDepth = 32;

constexpr std::uint8_t longTag = 0x1f;
constexpr std::uint8_t indefiniteLength = 0x80;

} // namespace

std::uint8_t BerReader::peek()
{
    if (roomLeft() == 0) return 0;
    const Bytes bytes = m_bytes.available();
    if (bytes.empty()) m_fault.reportCutShort();
    return bytes.empty() ? 0 : bytes.front();
}

bool BerReader::enter(std::uint8_t identifier)
{
    Element element;
    if (!readElement(element)) return false;
    return element.identifier == identifier ? open(element) : reportDamage();
}

bool BerReader::leave()
{
    if (m_fault.isSet()) return false;
    if (m_levels.back().isIndefinite) {
        // The end of the contents is marked by two zeros.
        for (int i = 0; i < 2; ++i) {
            std::uint8_t byte = 0;
            if (!readByte(byte)) return false;
            if (byte != 0) return reportDamage();
        }
    } else if (roomLeft() != 0) {
        return reportDamage();
    }
    m_levels.pop_back();
    return true;
}

bool BerReader::skip()
{
    Element element;
    if (!readElement(element)) return false;
    if (!element.isIndefinite) return readContents(element.length, [](Bytes) { return true; });
    if (!open(element)) return false;
    while (peek() != 0)
        if (!skip()) return false;
    return leave();
}

bool BerReader::skipNumber()
{
    // A failure of peek() was reported before and stays.
    return peek() == ber::integer ? skip() : reportDamage();
}

bool BerReader::collect(std::vector<std::uint8_t> &encoding, std::size_t maximum)
{
    encoding.clear();
    m_recording = &encoding;
    m_recordingMaximum = maximum;
    const bool isRead = skip();
    m_recording = nullptr;
    return isRead;
}

bool BerReader::readOctets(std::uint8_t identifier, const Consumer &consumer)
{
    Element element;
    if (!readElement(element)) return false;
    if (element.identifier == identifier) return readContents(element.length, consumer);
    if (element.identifier != (identifier | ber::constructed)) return reportDamage();
    if (!open(element)) return false;
    while (peek() != 0)
        if (!readOctets(ber::octetString, consumer)) return false;
    return leave();
}

bool BerReader::readOctets(std::uint8_t identifier, std::vector<std::uint8_t> &octets, std::size_t maximum)
{
    octets.clear();
    return readOctets(identifier, [this, &octets, maximum](Bytes bytes) {
        if (bytes.size() > maximum - octets.size()) return reportDamage();
        octets.insert(octets.end(), bytes.begin(), bytes.end());
        return true;
    });
}

std::uint64_t BerReader::end() const
{
    return m_levels.empty() ? std::numeric_limits<std::uint64_t>::max() : m_levels.back().end;
}

std::uint64_t BerReader::roomLeft() const { return end() - m_bytes.position(); }

bool BerReader::record(Bytes bytes)
{
    if (!m_recording) return true;
    if (bytes.size() > m_recordingMaximum - m_recording->size()) return reportDamage();
    m_recording->insert(m_recording->end(), bytes.begin(), bytes.end());
    return true;
}

bool BerReader::readByte(std::uint8_t &byte)
{
    if (roomLeft() == 0) return reportDamage();
    const auto next = m_bytes.get();
    if (!next) return m_fault.reportCutShort();
    byte = *next;
    return record({&byte, 1});
}

bool BerReader::readElement(Element &element)
{
    if (!readByte(element.identifier)) return false;
    if ((element.identifier & longTag) == longTag || element.identifier == 0) return reportDamage();
    if (!readLength(element)) return false;
    const bool isConstructed = element.identifier & ber::constructed;
    if (element.isIndefinite ? !isConstructed : element.length > roomLeft()) return reportDamage();
    return true;
}

bool BerReader::readLength(Element &element)
{
    std::uint8_t first = 0;
    if (!readByte(first)) return false;
    element.isIndefinite = first == indefiniteLength;
    if (first <= indefiniteLength) {
        element.length = element.isIndefinite ? 0 : first;
        return true;
    }
    const unsigned count = first - indefiniteLength;
    if (count > sizeof element.length) return reportDamage();
    for (unsigned i = 0; i < count; ++i) {
        std::uint8_t byte = 0;
        if (!readByte(byte)) return false;
        element.length = element.length << 8 | byte;
    }
    return true;
}

bool BerReader::open(const Element &element)
{
    if (m_levels.size() == maximumDepth) return reportDamage();
    const std::uint64_t ownEnd = element.isIndefinite ? end() : m_bytes.position() + element.length;
    m_levels.push_back({ownEnd, element.isIndefinite});
    return true;
}

bool BerReader::readContents(std::uint64_t length, const Consumer &consumer)
{
    while (length > 0) {
        const Bytes bytes = m_bytes.available();
        if (bytes.empty()) return m_fault.reportCutShort();
        const std::size_t count = static_cast<std::size_t>(std::min<std::uint64_t>(length, bytes.size()));
        if (!record(bytes.first(count)) || !consumer(bytes.first(count))) return false;
        m_bytes.skip(count);
        length -= count;
    }
    return true;
}

bool BerReader::reportDamage()
{
    return m_fault.report("is damaged: what is at byte " + std::to_string(m_bytes.position()) +
                          " of its binary form cannot be there");
}
