#pragma once

#include "Bytes.h"
#include "HuffmanCode.h"

#include <array>
#include <memory>
#include <optional>

namespace archiver {

/// Of the first bytes of a block (5, fewer at the end of the data); none where they can't be one.
[[nodiscard]] std::optional<BlockHeader> parseBlockHeader(Bytes start);
inline constexpr std::size_t largestBlockHeaderSize = 5;

/// Unpacks blocks in which every symbol is a byte that stands for itself, as HuffmanEncoder writes them.
class HuffmanDecoder {
public:
    HuffmanDecoder();

    enum class Start { Ready, NeedsDictionary, Damaged };
    /// Begins a block. `payload` has to stay as long as decode() is called, and has at least `padding` more
    /// bytes behind it that can be read. NeedsDictionary: the block has symbols that this class doesn't know.
    [[nodiscard]] Start start(Bytes payload, const BlockHeader &header);
    static constexpr std::size_t padding = 8;

    /// Unpacks as much as fits; 0 only when the block is at its end, or damaged.
    [[nodiscard]] std::size_t decode(std::span<std::uint8_t> output);
    [[nodiscard]] bool damaged() const { return m_damaged; }

private:
    struct Symbol {
        unsigned value;
        unsigned length; // 0: no such code
    };

    [[nodiscard]] Start startTables();
    [[nodiscard]] bool readTables(std::array<std::uint8_t, allSymbols> &lengths);
    [[nodiscard]] bool readLengthAlphabet(std::array<std::uint8_t, lengthSymbols> &lengths);
    void buildCode(std::span<const std::uint8_t> lengths);
    void buildFast();
    [[nodiscard]] std::uint64_t window(std::size_t bit) const;
    [[nodiscard]] unsigned takeBits(unsigned count);
    [[nodiscard]] Symbol find(std::uint64_t window) const;
    std::size_t decodeFast(std::span<std::uint8_t> output);

    static constexpr unsigned fastBits = 12;
    struct Fast {
        std::uint8_t symbols[2];
        std::uint8_t count; // 0: the code is longer than fastBits
        std::uint8_t bits;
    };

    const std::uint8_t *m_payload = nullptr;
    std::size_t m_bit = 0; // the next one
    std::size_t m_endBit = 0;
    bool m_damaged = false;
    bool m_haveTables = false;
    bool m_haveFast = false; // m_fast is of these tables
    std::unique_ptr<std::array<Fast, 1u << fastBits>> m_fast;
    /// For each length: the first 15-bit window beyond its codes, and what turns a code into an index of
    /// m_order.
    std::array<std::uint32_t, longestCode + 1> m_limits{};
    std::array<std::int32_t, longestCode + 1> m_offsets{};
    std::array<std::uint16_t, allSymbols> m_order{}; // symbols, in the order of their codes
};

} // namespace archiver
