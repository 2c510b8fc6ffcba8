#pragma once

#include "ByteReader.h"

#include <algorithm>
#include <limits>

/// Identifier octets (X.690, section 8.1.2). Tags above 30 take more than one and do not occur here.
namespace ber {
inline constexpr std::uint8_t constructed = 0x20;
inline constexpr std::uint8_t integer = 0x02;
inline constexpr std::uint8_t octetString = 0x04;
inline constexpr std::uint8_t objectIdentifier = 0x06;
inline constexpr std::uint8_t sequence = 0x30;
inline constexpr std::uint8_t set = 0x31;
/// The primitive one of a tag of the context; number: 0 to 30.
constexpr std::uint8_t context(unsigned number) { return static_cast<std::uint8_t>(0x80 | number); }
} // namespace ber

/// Reads a value in the Basic Encoding Rules (X.690) from front to back, with definite and indefinite
/// lengths. What returns false has reported why.
class BerReader {
public:
    BerReader(ByteReader &bytes, Fault &fault) : m_bytes(bytes), m_fault(fault) {}

    /// The identifier of the next element; 0 where the open one has no more, or on a failure, which leave()
    /// tells.
    [[nodiscard]] std::uint8_t peek()
    {
        if (roomLeft() == 0) return 0;
        const Bytes bytes = m_bytes.available();
        if (bytes.empty()) m_fault.reportCutShort();
        return bytes.empty() ? 0 : bytes.front();
    }

    /// Opens the next element, which must be a constructed one of this identifier.
    [[nodiscard]] bool enter(std::uint8_t identifier)
    {
        Element element;
        if (!readElement(element)) return false;
        return element.identifier == identifier ? open(element) : reportDamage();
    }

    /// Closes the open element, which must have no more.
    [[nodiscard]] bool leave()
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

    /// Goes past the next element with all that is in it.
    [[nodiscard]] bool skip()
    {
        Element element;
        if (!readElement(element)) return false;
        if (!element.isIndefinite) return readContents(element.length, [](Bytes) { return true; });
        if (!open(element)) return false;
        while (peek() != 0)
            if (!skip()) return false;
        return leave();
    }

    /// Goes past the next element, a number.
    [[nodiscard]] bool skipNumber()
    {
        // A failure of peek() was reported before and stays.
        return peek() == ber::integer ? skip() : reportDamage();
    }

    /// The next element as it stands, of at most `maximum` bytes.
    [[nodiscard]] bool collect(std::vector<std::uint8_t> &encoding, std::size_t maximum)
    {
        encoding.clear();
        m_recording = &encoding;
        m_recordingMaximum = maximum;
        const bool isRead = skip();
        m_recording = nullptr;
        return isRead;
    }

    /// Gets the pieces of an octet string, in order. False ends the reading.
    using Consumer = std::function<bool(Bytes)>;
    /// Reads the next element, an octet string whose primitive form has this identifier. It may be in one
    /// piece or in any number of them, of any size.
    [[nodiscard]] bool readOctets(std::uint8_t identifier, const Consumer &consumer)
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

    /// The same for a short one, of at most `maximum` bytes.
    [[nodiscard]] bool readOctets(std::uint8_t identifier, std::vector<std::uint8_t> &octets,
                                  std::size_t maximum)
    {
        octets.clear();
        return readOctets(identifier, [this, &octets, maximum](Bytes bytes) {
            if (bytes.size() > maximum - octets.size()) return reportDamage();
            octets.insert(octets.end(), bytes.begin(), bytes.end());
            return true;
        });
    }

    /// What was read last cannot be in such a message. Returns false.
    bool reportDamage()
    {
        return m_fault.report("is damaged: what is at byte " + std::to_string(m_bytes.position()) +
                              " of its binary form cannot be there");
    }

private:
    // Enough for a message inside any that mail programs write, and too little to fill the stack.
    static constexpr std::size_t maximumDepth = 32;
    static constexpr std::uint8_t longTag = 0x1f;
    static constexpr std::uint8_t indefiniteLength = 0x80;

    struct Element {
        std::uint8_t identifier = 0;
        bool isIndefinite = false;
        std::uint64_t length = 0; ///< of the contents, in bytes; 0 where it is indefinite
    };
    struct Level {
        std::uint64_t end; ///< no byte of the element lies at this position or behind
        bool isIndefinite;
    };

    [[nodiscard]] std::uint64_t end() const
    {
        return m_levels.empty() ? std::numeric_limits<std::uint64_t>::max() : m_levels.back().end;
    }

    [[nodiscard]] std::uint64_t roomLeft() const { return end() - m_bytes.position(); }

    bool record(Bytes bytes)
    {
        if (!m_recording) return true;
        if (bytes.size() > m_recordingMaximum - m_recording->size()) return reportDamage();
        m_recording->insert(m_recording->end(), bytes.begin(), bytes.end());
        return true;
    }

    bool readByte(std::uint8_t &byte)
    {
        if (roomLeft() == 0) return reportDamage();
        const auto next = m_bytes.get();
        if (!next) return m_fault.reportCutShort();
        byte = *next;
        return record({&byte, 1});
    }

    bool readElement(Element &element)
    {
        if (!readByte(element.identifier)) return false;
        if ((element.identifier & longTag) == longTag || element.identifier == 0) return reportDamage();
        if (!readLength(element)) return false;
        const bool isConstructed = element.identifier & ber::constructed;
        if (element.isIndefinite ? !isConstructed : element.length > roomLeft()) return reportDamage();
        return true;
    }

    bool readLength(Element &element)
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

    bool open(const Element &element)
    {
        if (m_levels.size() == maximumDepth) return reportDamage();
        const std::uint64_t ownEnd = element.isIndefinite ? end() : m_bytes.position() + element.length;
        m_levels.push_back({ownEnd, element.isIndefinite});
        return true;
    }

    bool readContents(std::uint64_t length, const Consumer &consumer)
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

    ByteReader &m_bytes;
    Fault &m_fault;
    std::vector<Level> m_levels;
    std::vector<std::uint8_t> *m_recording = nullptr; ///< gets what is read; null: nothing does
    std::size_t m_recordingMaximum = 0;
};
