#include "Unpacker.h"

#include <algorithm>
#include <new>
#include <sys/mman.h>
#include <utility>

namespace archiver {

namespace {

constexpr std::size_t longestMatch = 4096 + 8;
/// Behind any place where a symbol is unpacked.
constexpr std::size_t margin = longestMatch + 64;
/// Handed on at once: what is still in a near cache when its checksum is taken.
constexpr std::size_t portion = 128 << 10;
constexpr std::size_t mostFilters = 8192;
/// Literals are kept beside a window of up to this size.
constexpr std::size_t mostRemembered = 4 << 20;

constexpr unsigned filterSymbol = 256;
constexpr unsigned sameMatch = 257;
constexpr unsigned firstOldMatch = 258;
constexpr unsigned firstNewMatch = 262;

std::size_t readLength(unsigned slot, BitReader &bits)
{
    if (slot < 8) return 2 + slot;
    const unsigned extra = slot / 4 - 1;
    return 2 + ((4 + slot % 4) << extra) + bits.take(extra);
}

std::uint32_t readFilterNumber(BitReader &bits)
{
    const unsigned bytes = bits.take(2) + 1;
    std::uint32_t number = 0;
    for (unsigned index = 0; index < bytes; ++index)
        number |= bits.take(8) << 8 * index;
    return number;
}

} // namespace

void Unpacker::Unmap::operator()(std::uint8_t *bytes) const { munmap(bytes, size); }

void Unpacker::begin(std::uint64_t dictionary, bool solid)
{
    if (!solid) {
        constexpr std::size_t worthKeeping = 32 << 20;
        if (m_position > worthKeeping) m_window.reset();
        m_position = 0;
        m_haveLengths = false;
        m_haveCodes = false;
        m_remembered.clear();
        m_rememberedSize = 0;
        m_distances.fill(0);
        m_length = 0;
    }
    m_dictionary = static_cast<std::size_t>(std::min(dictionary, largestDictionary));
    const std::size_t capacity =
        m_dictionary + std::max(m_dictionary / 2, UnpackFilter::longest + (1u << 20)) + margin;
    if (!m_window || capacity > m_capacity) {
        // The system gives memory only to what is touched.
        void *const bytes = mmap(nullptr, capacity, PROT_READ | PROT_WRITE,
                                 MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        if (bytes == MAP_FAILED) throw std::bad_alloc();
        Memory window(static_cast<std::uint8_t *>(bytes), {capacity});
        if (m_window) std::copy_n(m_window.get(), m_position, window.get());
        m_window = std::move(window);
        m_capacity = capacity;
    }
    m_delivered = m_position;
    m_fileBytes = 0;
    m_filters.clear();
    m_filtersEnd = 0;
    m_onlyLiterals = true;
}

Unpacker::Outcome Unpacker::block(Bytes payload, const BlockHeader &header, ContentSink &sink)
{
    BitReader bits(payload, header);
    if (std::exchange(m_onlyLiterals, false)) putRemembered();
    if (header.hasTables) {
        m_haveCodes = false;
        m_haveLengths = readCodeLengths(bits, m_lengths);
    }
    if (!m_haveLengths) return Outcome::Damaged;
    if (!m_haveCodes && !m_codes->build(m_lengths, payload.size())) {
        m_haveLengths = false;
        return Outcome::Damaged;
    }
    m_haveCodes = true;
    return unpack(bits, sink);
}

Unpacker::Outcome Unpacker::unpack(BitReader bits, ContentSink &sink)
{
    const BlockCodes &codes = *m_codes;
    for (;;) {
        makeRoom();
        const std::size_t stop = std::min(m_position + portion, m_capacity - margin);
        std::uint8_t *const window = m_window.get();
        while (m_position < stop && !bits.atEnd()) {
            m_position = static_cast<std::size_t>(
                unpackLiterals(bits, codes, window + m_position, window + stop) - window);
            if (m_position >= stop || bits.atEnd()) break;
            const CodedSymbol symbol = codes.symbol(bits.peek());
            bits.skip(symbol.length);
            if (symbol.length == 0 || bits.overrun()) return Outcome::Damaged;
            if (symbol.value < literalSymbols)
                window[m_position++] = static_cast<std::uint8_t>(symbol.value);
            else if (!command(symbol.value, bits) || bits.overrun())
                return Outcome::Damaged;
        }
        if (!deliver(sink)) return Outcome::Refused;
        if (bits.atEnd()) return Outcome::Unpacked;
    }
}

bool Unpacker::command(unsigned symbol, BitReader &bits)
{
    if (symbol >= firstNewMatch) return newMatch(symbol - firstNewMatch, bits);
    if (symbol >= firstOldMatch) return oldMatch(symbol - firstOldMatch, bits);
    if (symbol == sameMatch) return m_length == 0 || copy();
    return symbol == filterSymbol && readFilter(bits);
}

bool Unpacker::newMatch(unsigned slot, BitReader &bits)
{
    std::size_t length = readLength(slot, bits);
    const CodedSymbol symbol = m_codes->distance(bits.peek());
    bits.skip(symbol.length);
    if (symbol.length == 0) return false;
    std::size_t distance = symbol.value + 1u;
    if (symbol.value >= 4) {
        const unsigned extra = symbol.value / 2u - 1;
        distance = (std::size_t{2u + symbol.value % 2u} << extra) + 1;
        if (extra < 4) {
            distance += bits.take(extra);
        } else {
            distance += std::size_t{bits.take(extra - 4)} << 4;
            const CodedSymbol low = m_codes->lowDistance(bits.peek());
            bits.skip(low.length);
            if (low.length == 0) return false;
            distance += low.value;
        }
    }
    for (const std::size_t far : {0x100u, 0x2000u, 0x40000u})
        if (distance > far) ++length;
    m_distances = {distance, m_distances[0], m_distances[1], m_distances[2]};
    m_length = length;
    return copy();
}

bool Unpacker::oldMatch(std::size_t index, BitReader &bits)
{
    const auto chosen = m_distances.begin() + static_cast<std::ptrdiff_t>(index);
    std::rotate(m_distances.begin(), chosen, chosen + 1);
    const CodedSymbol symbol = m_codes->repeatLength(bits.peek());
    bits.skip(symbol.length);
    if (symbol.length == 0) return false;
    m_length = readLength(symbol.value, bits);
    return copy();
}

bool Unpacker::copy()
{
    const std::size_t distance = m_distances[0];
    if (distance == 0 || distance > m_dictionary || distance > m_position) return false;
    std::uint8_t *to = m_window.get() + m_position;
    const std::uint8_t *from = to - distance;
    const std::uint8_t *const end = to + m_length;
    m_position += m_length;
    if (distance >= 16) {
        for (; to < end; to += 16, from += 16) // some bytes too many: they are written over
            std::memcpy(to, from, 16);
    } else if (distance == 1) {
        std::memset(to, *from, m_length);
    } else {
        while (to < end)
            *to++ = *from++;
    }
    return true;
}

bool Unpacker::readFilter(BitReader &bits)
{
    UnpackFilter filter;
    filter.begin = m_fileBytes + (m_position - m_delivered) + readFilterNumber(bits);
    if (bits.overrun()) return false;
    filter.length = readFilterNumber(bits);
    if (bits.overrun()) return false;
    const unsigned kind = bits.take(3);
    if (kind >= UnpackFilter::kinds) return false;
    filter.kind = UnpackFilter::Kind{static_cast<std::uint8_t>(kind)};
    if (filter.kind == UnpackFilter::Kind::Delta) filter.channels = bits.take(5) + 1;
    if (filter.length == 0 || filter.length > UnpackFilter::longest || filter.begin < m_filtersEnd ||
        m_filters.size() >= mostFilters)
        return false;
    m_filtersEnd = filter.end();
    m_filters.push_back(filter);
    return true;
}

bool Unpacker::deliverUpTo(std::uint64_t position, ContentSink &sink)
{
    const std::uint64_t count = std::min<std::uint64_t>(position - m_fileBytes, m_position - m_delivered);
    const Bytes bytes(m_window.get() + m_delivered, static_cast<std::size_t>(count));
    m_delivered += bytes.size();
    m_fileBytes += bytes.size();
    return bytes.empty() || sink.write(bytes);
}

/// What isn't waiting for the end of a filter.
bool Unpacker::deliver(ContentSink &sink)
{
    while (!m_filters.empty()) {
        const UnpackFilter filter = m_filters.front();
        if (!deliverUpTo(filter.begin, sink)) return false;
        if (m_fileBytes < filter.begin || m_position - m_delivered < filter.length) return true;
        filter.undo({m_window.get() + m_delivered, filter.length}, m_restored);
        m_delivered += filter.length;
        m_fileBytes += filter.length;
        m_filters.pop_front();
        if (!sink.write(m_restored)) return false;
    }
    return deliverUpTo(m_fileBytes + (m_position - m_delivered), sink);
}

/// For a symbol at least, where the window is full.
void Unpacker::makeRoom()
{
    if (m_position < m_capacity - margin) return;
    const std::size_t first = std::min(m_delivered, m_position - std::min(m_position, m_dictionary));
    std::memmove(m_window.get(), m_window.get() + first, m_position - first);
    m_position -= first;
    m_delivered -= first;
}

void Unpacker::put(Bytes bytes)
{
    while (!bytes.empty()) {
        makeRoom();
        const Bytes part = bytes.first(std::min(bytes.size(), m_capacity - margin - m_position));
        std::ranges::copy(part, m_window.get() + m_position);
        m_position += part.size();
        m_delivered = m_position;
        bytes = bytes.subspan(part.size());
    }
}

Unpacker::Outcome Unpacker::literals(ByteBuffer &literals, std::size_t size, const CodeLengths &lengths,
                                     ContentSink &sink)
{
    m_lengths = lengths;
    m_haveLengths = true;
    m_haveCodes = false;
    if (m_onlyLiterals) {
        m_fileBytes += size;
        remember(literals, size);
        return Outcome::Unpacked;
    }
    for (Bytes left = Bytes(literals).first(size); !left.empty();) {
        makeRoom();
        const Bytes part = left.first(std::min({left.size(), portion, m_capacity - margin - m_position}));
        std::ranges::copy(part, m_window.get() + m_position);
        m_position += part.size();
        left = left.subspan(part.size());
        if (!deliver(sink)) return Outcome::Refused;
    }
    return Outcome::Unpacked;
}

void Unpacker::remember(ByteBuffer &literals, std::size_t size)
{
    ByteBuffer spare;
    while (!m_remembered.empty() && m_rememberedSize - m_remembered.front().size >= m_dictionary) {
        m_rememberedSize -= m_remembered.front().size;
        spare = std::move(m_remembered.front().bytes);
        m_remembered.pop_front();
    }
    m_rememberedSize += size;
    m_remembered.push_back({std::exchange(literals, std::move(spare)), size});
    if (m_dictionary > mostRemembered) putRemembered();
}

void Unpacker::putRemembered()
{
    for (const Remembered &each : m_remembered)
        put(Bytes(each.bytes).first(each.size));
    m_remembered.clear();
    m_rememberedSize = 0;
}

Unpacker::Outcome Unpacker::end(ContentSink &sink)
{
    if (!deliver(sink)) return Outcome::Refused;
    return m_filters.empty() ? Outcome::Unpacked : Outcome::Damaged;
}

} // namespace archiver
