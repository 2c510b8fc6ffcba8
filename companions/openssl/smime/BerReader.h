#pragma once

#include "ByteReader.h"

#include <functional>
#include <vector>

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
    [[nodiscard]] std::uint8_t peek();
    /// Opens the next element, which must be a constructed one of this identifier.
    [[nodiscard]] bool enter(std::uint8_t identifier);
    /// Closes the open element, which must have no more.
    [[nodiscard]] bool leave();
    /// Goes past the next element with all that is in it.
    [[nodiscard]] bool skip();
    /// Goes past the next element, a number.
    [[nodiscard]] bool skipNumber();
    /// The next element as it stands, of at most `maximum` bytes.
    [[nodiscard]] bool collect(std::vector<std::uint8_t> &encoding, std::size_t maximum);

    /// Gets the pieces of an octet string, in order. False ends the reading.
    using Consumer = std::function<bool(Bytes)>;
    /// Reads the next element, an octet string whose primitive form has this identifier. It may be in one
    /// piece or in any number of them, of any size.
    [[nodiscard]] bool readOctets(std::uint8_t identifier, const Consumer &consumer);
    /// The same for a short one, of at most `maximum` bytes.
    [[nodiscard]] bool readOctets(std::uint8_t identifier, std::vector<std::uint8_t> &octets,
                                  std::size_t maximum);

    /// What was read last cannot be in such a message. Returns false.
    bool reportDamage();

private:
    struct Element {
        std::uint8_t identifier = 0;
        bool isIndefinite = false;
        std::uint64_t length = 0; ///< of the contents, in bytes; 0 where it is indefinite
    };
    struct Level {
        std::uint64_t end; ///< no byte of the element lies at this position or behind
        bool isIndefinite;
    };

    [[nodiscard]] std::uint64_t end() const;
    [[nodiscard]] std::uint64_t roomLeft() const;
    bool record(Bytes bytes);
    bool readByte(std::uint8_t &byte);
    bool readElement(Element &element);
    bool readLength(Element &element);
    bool open(const Element &element);
    bool readContents(std::uint64_t length, const Consumer &consumer);

    ByteReader &m_bytes;
    Fault &m_fault;
    std::vector<Level> m_levels;
    std::vector<std::uint8_t> *m_recording = nullptr; ///< gets what is read; null: nothing does
    std::size_t m_recordingMaximum = 0;
};
