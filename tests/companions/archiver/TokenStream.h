#pragma once

#include "HuffmanCode.h"

#include <algorithm>
#include <bit>
#include <string>
#include <vector>

/// Packs an entry token by token, with codes of one length for all symbols of a kind, so that a symbol is its
/// own code. What it stands for is kept beside.
class TokenStream {
public:
    /// `before`: what a solid entry follows.
    explicit TokenStream(std::string before = {}) : m_content(std::move(before)), m_start(m_content.size()) {}

    void literal(char byte)
    {
        put(static_cast<unsigned char>(byte), m_mainBits);
        m_content += byte;
    }
    void match(std::size_t distance, std::size_t length)
    {
        const std::size_t coded = length - (distance > 0x100) - (distance > 0x2000) - (distance > 0x40000);
        const auto [slot, extra, value] = lengthSlot(coded);
        put(262 + slot, m_mainBits);
        put(value, extra);
        const std::size_t x = distance - 1;
        const auto width = static_cast<unsigned>(std::bit_width(x));
        const unsigned bits = x < 4 ? 0 : width - 2;
        put(x < 4 ? x : 2 * bits + 2 + (x >> bits & 1), 6);
        const std::size_t rest = x & ((std::size_t{1} << bits) - 1);
        if (bits < 4) put(rest, bits);
        if (bits >= 4) put(rest >> 4, bits - 4);
        if (bits >= 4) put(rest & 15, 4);
        m_distances.insert(m_distances.begin(), distance);
        copy(length);
    }
    void again(std::size_t index, std::size_t length)
    {
        put(258 + index, m_mainBits);
        const auto [slot, extra, value] = lengthSlot(length);
        put(slot, 6);
        put(value, extra);
        std::rotate(m_distances.begin(), m_distances.begin() + std::ptrdiff_t(index),
                    m_distances.begin() + std::ptrdiff_t(index) + 1);
        copy(length);
    }
    void same()
    {
        put(257, m_mainBits);
        copy(m_length);
    }
    void filter(std::size_t ahead, std::size_t length, unsigned kind, unsigned channels = 1)
    {
        put(256, m_mainBits);
        for (const std::size_t number : {ahead, length}) {
            put(3, 2);
            for (unsigned index = 0; index < 4; ++index)
                put(number >> 8 * index & 255, 8);
        }
        put(kind, 3);
        if (kind == 0) put(channels - 1, 5);
    }
    [[nodiscard]] bool canRepeat() const { return m_distances.size() >= 4; }
    [[nodiscard]] std::size_t size() const { return m_content.size(); }
    void put(std::size_t value, unsigned count)
    {
        for (unsigned bit = count; bit-- > 0;)
            m_bits.push_back(value >> bit & 1);
    }
    /// Of the block that begins: `mainBits` is 9 to 15.
    void codes(unsigned mainBits, bool literalsOnly = false)
    {
        m_mainBits = mainBits;
        m_haveTables = true;
        for (unsigned symbol = 0; symbol < archiver::lengthSymbols; ++symbol)
            put(5, 4);
        const auto putLengths = [this](std::size_t symbols, unsigned length) {
            for (; symbols > 0; --symbols)
                put(length, 5);
        };
        putLengths(archiver::literalSymbols, mainBits);
        putLengths(archiver::mainSymbols - archiver::literalSymbols, literalsOnly ? 0 : mainBits);
        putLengths(64, 6);
        putLengths(16, 4);
        putLengths(44, 6);
    }
    void endBlock(bool last)
    {
        const std::size_t used = m_bits.empty() ? 8 : (m_bits.size() + 7) % 8 + 1;
        std::string payload((m_bits.size() + 7) / 8, '\0');
        for (std::size_t bit = 0; bit < m_bits.size(); ++bit)
            if (m_bits[bit]) payload[bit / 8] = static_cast<char>(payload[bit / 8] | 0x80 >> bit % 8);
        const std::size_t flags = (used - 1) | 2u << 3 | (last ? 0x40 : 0) | (m_haveTables ? 0x80 : 0);
        std::string sizes;
        for (unsigned index = 0; index < 3; ++index)
            sizes += static_cast<char>(payload.size() >> 8 * index);
        m_packed += static_cast<char>(flags);
        m_packed += static_cast<char>(0x5A ^ flags ^ std::size_t(sizes[0]) ^ std::size_t(sizes[1]) ^
                                      std::size_t(sizes[2]));
        m_packed += sizes + payload;
        m_bits.clear();
        m_haveTables = false;
    }
    /// The content of this entry without filters, and of all up to its end.
    [[nodiscard]] std::string content() const { return m_content.substr(m_start); }
    [[nodiscard]] const std::string &window() const { return m_content; }
    [[nodiscard]] const std::string &packed() const { return m_packed; }

private:
    struct Slot {
        std::size_t slot;
        unsigned extra;
        std::size_t value;
    };
    static Slot lengthSlot(std::size_t length)
    {
        const std::size_t v = length - 2;
        if (v < 8) return {v, 0, 0};
        const auto extra = static_cast<unsigned>(std::bit_width(v)) - 3;
        return {std::size_t{4} * (extra + 1) + ((v >> extra) & 3), extra, v & ((1u << extra) - 1)};
    }
    void copy(std::size_t length)
    {
        m_length = length;
        for (; length > 0; --length)
            m_content += m_content[m_content.size() - m_distances[0]];
    }

    std::vector<bool> m_bits;
    std::string m_content;
    std::size_t m_start;
    std::string m_packed;
    unsigned m_mainBits = 9;
    bool m_haveTables = false;
    std::vector<std::size_t> m_distances;
    std::size_t m_length = 0;
};
