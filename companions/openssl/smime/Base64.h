#pragma once

#include "ByteReader.h"

// Base64 (RFC 4648, section 4) by the line and by the group, as fast as memory allows.

/// Hands on the base64 text of what is written to it.
class Base64Sink final : public ByteSink {
public:
    explicit Base64Sink(ByteSink &text);

    [[nodiscard]] bool write(Bytes bytes) override;
    /// Hands on the last line, which may be shorter than the others.
    [[nodiscard]] bool finish();

private:
    bool encode(Bytes bytes);

    ByteSink &m_sink;
    std::vector<std::uint8_t> m_text;
    std::vector<std::uint8_t> m_begun; ///< less than a line
};

/// What a base64 text (RFC 2045, section 6.8) stands for. Lines may have any length and end with LF or CRLF;
/// every other character that is none of base64's is a fault.
class Base64Source final : public ByteSource {
public:
    enum class Rules {
        Strict, ///< bits that stand for nothing are a fault, too
        OfTool, ///< as the system's tool takes it: with lines around it that begin with a dash, and any bits
    };
    Base64Source(ByteReader &text, Fault &fault, Rules rules = Rules::Strict);

    /// A fault in the text is reported once all that stands before it was read.
    [[nodiscard]] Bytes read() override;

    /// From now on whatever is not white space goes beyond the end of the message.
    void expectEnd() { m_expectsEnd = true; }

private:
    std::size_t decodeWhole(Bytes text);
    bool decodeOne(std::uint8_t character);
    bool takePadding();
    void put(unsigned count);
    bool finish();
    bool reportCharacter();

    ByteReader &m_text;
    Fault &m_fault;
    Rules m_rules;
    std::vector<std::uint8_t> m_decoded;
    std::size_t m_size = 0;     ///< of what is decoded
    std::uint32_t m_group = 0;  ///< the bits of the characters of an unfinished group of four
    unsigned m_groupSize = 0;   ///< how many characters it has
    unsigned m_paddingLeft = 0; ///< how many more `=` the last group needs
    bool m_isPadded = false;    ///< the last group came
    bool m_expectsEnd = false;
    bool m_hasBegun = false;
    bool m_isAtLineStart = true;
    bool m_isOutside = false; ///< in lines that are no part of it
};
