#pragma once

#include "Content.h"
#include "HuffmanDecoder.h"
#include "UnpackFilter.h"

#include <deque>
#include <memory>

namespace archiver {

/// Unpacks the blocks of RAR 5 in their order: literals and matches, whose dictionary is what was unpacked
/// before, in this entry and, where it is solid, in those before it. Whatever the bytes are, nothing outside
/// of what was unpacked is read. The memory in use grows with the content up to the dictionary's size and
/// some megabytes.
class Unpacker {
public:
    /// The largest dictionary that there can be; a shorter content does with a larger one.
    static constexpr std::uint64_t largestDictionary = 1 << 30;

    /// Begins with an entry. A solid one goes on with window, codes and old distances of the one before.
    void begin(std::uint64_t dictionary, bool solid);

    enum class Outcome { Unpacked, Damaged, Refused }; // by the sink
    /// The next block. `payload` is followed by BitReader::padding bytes that can be read.
    [[nodiscard]] Outcome block(Bytes payload, const BlockHeader &header, ContentSink &sink);
    /// In place of a block of literals only that unpackLiteralBlock() has unpacked: the first `size` bytes of
    /// `literals`, which is exchanged for another buffer.
    [[nodiscard]] Outcome literals(ByteBuffer &literals, std::size_t size, const CodeLengths &lengths,
                                   ContentSink &sink);
    /// Whether all of the entry up to now was such blocks: then they haven't gone through the sink.
    [[nodiscard]] bool onlyLiterals() const { return m_onlyLiterals; }
    /// After the entry's last block.
    [[nodiscard]] Outcome end(ContentSink &sink);

private:
    [[nodiscard]] Outcome unpack(BitReader bits, ContentSink &sink);
    [[nodiscard]] bool command(unsigned symbol, BitReader &bits);
    [[nodiscard]] bool newMatch(unsigned slot, BitReader &bits);
    [[nodiscard]] bool oldMatch(std::size_t index, BitReader &bits);
    [[nodiscard]] bool copy();
    [[nodiscard]] bool readFilter(BitReader &bits);
    [[nodiscard]] bool deliver(ContentSink &sink);
    [[nodiscard]] bool deliverUpTo(std::uint64_t position, ContentSink &sink);
    [[nodiscard]] std::size_t limit() const;
    void makeRoom();
    void put(Bytes bytes);
    void remember(ByteBuffer &literals, std::size_t size);
    void putRemembered();

    struct Unmap {
        std::size_t size;
        void operator()(std::uint8_t *bytes) const;
    };
    using Memory = std::unique_ptr<std::uint8_t, Unmap>;
    struct Remembered {
        ByteBuffer bytes;
        std::size_t size;
    };

    // The window is a stretch of memory that is filled from front to back; at its end, the dictionary moves
    // to the front.
    Memory m_window;
    std::size_t m_capacity = 0;
    std::size_t m_usual = 0; ///< how much of that is used without filters
    std::size_t m_dictionary = 0;
    std::size_t m_position = 0;         ///< where the next byte goes
    std::size_t m_delivered = 0;        ///< up to where the sink has had it
    std::uint64_t m_fileBytes = 0;      ///< that it has had of this entry
    std::deque<UnpackFilter> m_filters; ///< whose stretch isn't complete yet
    std::uint64_t m_filtersEnd = 0;
    ByteBuffer m_restored;

    bool m_onlyLiterals = true;
    std::deque<Remembered> m_remembered; ///< literals that belong behind the window's bytes
    std::size_t m_rememberedSize = 0;

    bool m_haveLengths = false;
    bool m_haveCodes = false; ///< they are of m_lengths
    CodeLengths m_lengths{};
    std::unique_ptr<BlockCodes> m_codes = std::make_unique<BlockCodes>();
    std::array<std::size_t, 4> m_distances{}; ///< of the last matches, the latest first
    std::size_t m_length = 0;                 ///< of the last match
};

} // namespace archiver
