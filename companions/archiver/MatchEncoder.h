#pragma once

#include "MatchFinder.h"
#include "PackedBlock.h"

#include <array>

namespace archiver {

/// Packs bytes with what repeats in them, in blocks that any reader of the format unpacks.
class MatchEncoder {
public:
    /// Reaches over a piece and what is kept of the one before: 128 KiB << 5. A reader holds as much in
    /// memory.
    static constexpr unsigned dictionary = 5;

    /// Which bytes of the window are packed, and whether they are the last ones of their entry.
    struct Range {
        std::size_t begin;
        std::size_t end; ///< behind `begin`
        bool last;
    };
    /// The bytes of the range, where `matches` stands and which it leaves behind; nothing is taken for known
    /// but what is before them in the window. Gives the size of the blocks.
    std::size_t encode(Bytes window, const Range &range, MatchCursor &matches, PackedBlocks &into);

private:
    /// A command, and the literals before it.
    struct Token {
        std::uint32_t literals;
        std::uint16_t length; ///< in bytes
        std::uint16_t command;
        std::uint16_t lengthSymbol; ///< of a repeated distance
        std::uint16_t lengthExtra;
        std::uint8_t lengthBits;
        std::uint8_t distanceSymbol;
        std::uint32_t distanceExtra;
        std::uint8_t distanceBits;
        std::uint8_t lowDistance; ///< and 16; 0: there is none
    };

    void addLiterals(std::size_t count);
    void addMatch(std::size_t distance, std::size_t length);
    [[nodiscard]] std::size_t addCommand(std::size_t distance, std::size_t length);
    void putLength(Token &token, std::size_t length, std::size_t firstSymbol);
    void putDistance(Token &token, std::size_t distance);
    void count(const Token &token);
    void cover(std::size_t size);
    void endBlock();
    [[nodiscard]] BitWriter writeTokens(BitWriter writer) const;
    [[nodiscard]] std::uint8_t *newPayload(std::size_t bits);
    void putLastByte(std::uint8_t byte);
    void finish(std::uint8_t *payload, BitWriter writer, bool last);

    Bytes m_window;
    PackedBlocks *m_into = nullptr;
    std::size_t m_packed = 0;
    std::size_t m_position = 0;
    std::size_t m_blockBegin = 0;

    std::array<std::size_t, 4> m_distances{}; ///< the last ones of this entry, the newest first
    std::size_t m_known = 0;                  ///< how many of them there are
    std::size_t m_lastLength = 0;

    // The present block:
    std::vector<Token> m_tokens;
    std::size_t m_literals = 0; ///< behind the last token
    std::array<std::uint32_t, allSymbols> m_counts{};
    std::size_t m_extraBits = 0;
    std::array<std::uint8_t, allSymbols> m_lengths{};
    std::array<std::uint16_t, allSymbols> m_codes{};
};

} // namespace archiver
