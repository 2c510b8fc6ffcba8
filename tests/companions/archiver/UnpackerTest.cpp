#include "Companion.h"
#include "HuffmanCode.h"
#include "Rar.h"
#include "Tree.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <random>

using namespace archiver;
namespace fs = std::filesystem;

namespace {

using Numbers = std::mt19937;
std::size_t below(Numbers &numbers, std::size_t limit) { return numbers() % limit; }

/// Packs an entry token by token, with codes of one length for all symbols of a kind, so that a symbol is its
/// own code. What it stands for is kept beside.
class Stream {
public:
    /// `before`: what a solid entry follows.
    explicit Stream(std::string before = {}) : m_content(std::move(before)), m_start(m_content.size()) {}

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
    /// Its length has no other than these sizes: 9 to 15.
    void codes(unsigned mainBits)
    {
        m_mainBits = mainBits;
        m_haveTables = true;
        for (unsigned symbol = 0; symbol < lengthSymbols; ++symbol)
            put(5, 4);
        for (unsigned symbol = 0; symbol < allSymbols; ++symbol)
            put(symbol < mainSymbols                                      ? mainBits
                : symbol >= mainSymbols + 64 && symbol < mainSymbols + 80 ? 4
                                                                          : 6,
                5);
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
    [[nodiscard]] HandmadeEntry entry(const std::string &name, const std::string &content, bool solid) const
    {
        HandmadeEntry entry = storedFile(name, content);
        entry.data = m_packed;
        entry.header.packedSize = m_packed.size();
        entry.header.method = 3;
        entry.header.dictionary = 3;
        entry.header.solid = solid;
        return entry;
    }

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
        return {4 * (extra + 1) + ((v >> extra) & 3), extra, v & ((1u << extra) - 1)};
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

/// Blocks of all tokens that there are, about `size` bytes. Blocks without tables are for readers that know
/// them.
Stream randomStream(Numbers &numbers, const std::string &before, std::size_t size, bool tables)
{
    Stream stream(before);
    const std::size_t end = before.size() + size;
    for (bool isFirst = true; stream.size() < end || isFirst; isFirst = false) {
        if (isFirst || tables || below(numbers, 2)) stream.codes(below(numbers, 3) ? 9 : 14);
        for (std::size_t count = below(numbers, 3000); count > 0 && stream.size() < end; --count) {
            const std::size_t most = std::min<std::size_t>(stream.size(), 1 << 20);
            const std::size_t length = 5 + below(numbers, below(numbers, 20) ? 30 : 4080);
            switch (most > 0 ? below(numbers, 8) : 0) {
            case 5:
                stream.match(1 + below(numbers, below(numbers, 2) ? most : std::min<std::size_t>(most, 40)),
                             length);
                break;
            case 6:
                if (stream.canRepeat()) stream.again(below(numbers, 4), length);
                break;
            case 7:
                if (stream.canRepeat()) stream.same();
                break;
            default:
                stream.literal(static_cast<char>(below(numbers, 256)));
            }
        }
        stream.endBlock(false);
    }
    stream.codes(9);
    stream.literal('.');
    stream.endBlock(true);
    return stream;
}

/// Makes of `bytes` what the packer makes of it before it packs.
std::string changed(std::string bytes, std::size_t begin, unsigned kind, unsigned channels)
{
    const auto word = [&](std::size_t at) {
        std::uint32_t value = 0;
        std::memcpy(&value, &bytes[at], 4);
        return value;
    };
    const auto set = [&](std::size_t at, std::uint32_t value) { std::memcpy(&bytes[at], &value, 4); };
    if (kind == 0) {
        std::string differences;
        for (unsigned channel = 0; channel < channels; ++channel)
            for (std::size_t at = channel; at < bytes.size(); at += channels)
                differences += static_cast<char>((at < channels ? 0 : bytes[at - channels]) - bytes[at]);
        return differences;
    }
    for (std::size_t at = 0; kind == 3 && at + 4 <= bytes.size(); at += 4)
        if (bytes[at + 3] == '\xEB')
            set(at, ((word(at) + std::uint32_t((begin + at) / 4)) & 0xFFFFFF) | 0xEB000000);
    for (std::size_t at = 0; kind < 3 && at + 4 < bytes.size(); ++at) {
        if (bytes[at] != '\xE8' && (kind == 1 || bytes[at] != '\xE9')) continue;
        const auto offset = static_cast<std::uint32_t>((begin + at + 1) % (1 << 24));
        const std::uint32_t value = word(at + 1);
        if (value + offset < 1 << 24)
            set(at + 1, value + offset);
        else if (value < 1 << 24)
            set(at + 1, value - (1 << 24));
        at += 4;
    }
    return bytes;
}

class UnpackerTest : public ArchiverTest {
protected:
    /// What comes out by our reader, in one piece and in volumes, and by another.
    void expectContents(const std::vector<HandmadeEntry> &entries,
                        const std::map<std::string, std::string> &contents, bool isForOthers = true)
    {
        const std::string bytes = handmadeArchive(entries, presentFormat, {.solid = true});
        writeFile(archive, bytes);
        const std::size_t last = entries.back().data.size();
        const auto volumes = handmadeSet(entries, {1, last / 3, last / 3 + 2, last - 1}, presentFormat);
        for (std::size_t index = 0; index < volumes.size(); ++index)
            writeFile(temporary / ("set.part" + std::to_string(index + 1) + ".rar"), volumes[index]);
        fs::create_directory(temporary / "other");
        if (isForOthers) {
            EXPECT_EQ(runCommand({"bsdtar", "-xf", archive, "-C", temporary / "other"}).errors, "");
        }
        EXPECT_EQ(rar({"x", archive, temporary / "plain"}).errors, "");
        EXPECT_EQ(rar({"x", temporary / "set.part1.rar", temporary / "set"}).errors, "");
        EXPECT_EQ(runCommand({"taskset", "-c", "0", QUILLORENT_RAR, "t", archive}).errors, "");
        std::string printed;
        for (const HandmadeEntry &entry : entries)
            printed += contents.at(entry.header.name);
        EXPECT_TRUE(rar({"p", archive}).output == printed);
        for (const auto &[name, content] : contents)
            for (const std::string folder : {"plain", "set", "other"})
                EXPECT_TRUE((folder == "other" && !isForOthers) ||
                            readFile(temporary / folder / name) == content)
                    << folder << " " << name;
    }
};

} // namespace

TEST_F(UnpackerTest, matchesOfAllKindsComeBack)
{
    Numbers numbers(1);
    for (const bool tables : {true, false}) {
        // The second group is longer than the window, and than what is unpacked at a time.
        std::vector<HandmadeEntry> entries;
        std::map<std::string, std::string> contents;
        for (const std::size_t first : {3000u, 7'000'000u}) {
            std::string window;
            for (unsigned number = 0; number < 4; ++number) {
                const std::string name = std::to_string(first) + "-" + std::to_string(number);
                Stream stream = randomStream(numbers, window, number == 0 ? first : number * 20'000, tables);
                entries.push_back(stream.entry(name, stream.content(), number > 0));
                contents[name] = stream.content();
                window = stream.window();
                entries.push_back(storedFile(name + "s", name));
                contents[name + "s"] = name;
            }
        }
        contents.erase(entries.back().header.name);
        entries.pop_back();
        expectContents(entries, contents, tables);
    }
}

TEST_F(UnpackerTest, filtersAreUndone)
{
    Numbers numbers(2);
    std::string original(400'000, '\0');
    for (char &byte : original)
        byte = "\xE8\xE9\xEB\0\0\0\xFF\xFF\1\2"[below(numbers, 10)];
    std::string packed = original;
    Stream stream;
    stream.codes(9);
    struct Filter {
        std::size_t begin, length;
        unsigned kind, channels;
    };
    std::vector<Filter> filters;
    for (std::size_t at = 10; at + 40'000 < original.size();) {
        const Filter filter{at, 4 + below(numbers, 30'000), unsigned(below(numbers, 4)),
                            1 + unsigned(below(numbers, 32))};
        packed.replace(at, filter.length,
                       changed(original.substr(at, filter.length), at, filter.kind, filter.channels));
        filters.push_back(filter);
        at += filter.length + below(numbers, 2) * below(numbers, 5000);
    }
    std::size_t next = 0;
    for (std::size_t at = 0; at < packed.size(); ++at) {
        for (; next < filters.size() && filters[next].begin < at + 20'000; ++next)
            stream.filter(filters[next].begin - at, filters[next].length, filters[next].kind,
                          filters[next].channels);
        stream.literal(packed[at]);
        if (below(numbers, 20'000) == 0) {
            stream.endBlock(false);
            stream.codes(9);
        }
    }
    stream.endBlock(true);
    HandmadeEntry after = randomStream(numbers, stream.window(), 10, true).entry("after", "", true);
    expectContents({stream.entry("file", original, false)}, {{"file", original}});
}

TEST_F(UnpackerTest, whatMakesNoSenseIsDamageOfOneEntry)
{
    const std::vector<std::pair<const char *, std::function<void(Stream &)>>> cases = {
        {"an old match where there was none", [](Stream &stream) { stream.put(258, 9), stream.put(0, 6); }},
        {"a distance of more than there is",
         [](Stream &stream) { stream.put(262, 9), stream.put(9, 6), stream.put(0, 3); }},
        {"the largest distance",
         [](Stream &stream) {
             stream.put(262, 9), stream.put(63, 6), stream.put(~0u, 26), stream.put(15, 4);
         }},
        {"a symbol without a code", [](Stream &stream) { stream.put(511, 9); }},
        {"half a match at the end", [](Stream &stream) { stream.put(262, 9); }},
        {"a filter that never ends", [](Stream &stream) { stream.filter(0, 100, 1); }},
        {"a filter over another's stretch",
         [](Stream &stream) { stream.filter(2, 8, 1), stream.filter(0, 8, 1); }},
        {"a filter too long", [](Stream &stream) { stream.filter(0, 5 << 20, 1); }},
        {"a filter of no kind", [](Stream &stream) { stream.filter(0, 8, 7); }},
        {"too many codes", [](Stream &stream) { stream.endBlock(false), stream.codes(8); }},
        {"more than was told", [](Stream &stream) { stream.match(1, 2000); }}};
    for (const auto &[what, spoil] : cases) {
        Stream stream;
        stream.codes(9);
        for (const char byte : std::string("some text"))
            stream.literal(byte);
        const std::string told = stream.content() + "12345678";
        spoil(stream);
        stream.endBlock(true);
        Stream whole;
        whole.codes(9);
        whole.literal('x');
        whole.endBlock(true);
        Stream depends("x");
        depends.codes(9);
        depends.match(1, 5);
        depends.endBlock(true);
        HandmadeEntry large = whole.entry("large", "x", true);
        large.header.dictionary = 15;
        const HandmadeEntry bad = stream.entry("bad", told, false);
        writeFile(archive,
                  handmadeArchive({bad, depends.entry("lost", "xxxxx", true),
                                   whole.entry("whole", "x", false), large, storedFile("stored", "s")},
                                  presentFormat, {.solid = true}));
        for (const std::string command : {"x", "p"}) {
            fs::remove_all(out);
            fs::create_directory(out);
            const CommandResult result = rar({command, archive}, {.folder = out});
            EXPECT_TRUE(result.errors.starts_with("\nbad: checksum error\n\nlost ")) << what << result.errors;
            EXPECT_TRUE(
                result.errors.ends_with("\n\nlarge needs a dictionary of 4096 MB to be unpacked, more "
                                        "than the 1024 MB that there are\n"))
                << what << result.errors;
            EXPECT_EQ(std::ranges::count(result.errors, '\n'), 6) << what << result.errors;
            if (command == "x") {
                EXPECT_EQ(readFile(out / "whole") + readFile(out / "stored"), "xs") << what;
                EXPECT_EQ(entriesIn(out), 2u);
            }
        }
    }
}
