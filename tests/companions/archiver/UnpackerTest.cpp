#include "HuffmanEncoder.h"
#include "LiteralBlock.h"
#include "Rar.h"
#include "TokenStream.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <random>

using namespace archiver;

namespace {

using Numbers = std::mt19937;
std::size_t below(Numbers &numbers, std::size_t limit) { return numbers() % limit; }

HandmadeEntry packedEntry(TokenStream stream, const std::string &name, const std::string &content, bool solid)
{
    stream.endBlock(true);
    return packedFile(name, content, stream.packed(), solid);
}

/// A block of literals, which goes on.
TokenStream literalStream(const std::string &text)
{
    TokenStream stream;
    stream.codes(9);
    for (const char byte : text)
        stream.literal(byte);
    return stream;
}

/// Blocks of all tokens that there are, or of literals only, about `size` bytes; long ones begin with the
/// latter. Blocks without tables are for readers that know them.
TokenStream randomStream(Numbers &numbers, const std::string &before, std::size_t size, bool tables)
{
    TokenStream stream(before);
    const std::size_t end = before.size() + size;
    bool literals = false;
    for (bool isFirst = true; stream.size() < end || isFirst; isFirst = false) {
        if (isFirst || tables || below(numbers, 2)) {
            literals = below(numbers, 4) == 0 || (size > 100'000 && stream.size() + size < end + 400'000);
            stream.codes(below(numbers, 3) ? 9 : 14, literals);
        }
        for (std::size_t count = below(numbers, 3000); count > 0 && stream.size() < end; --count) {
            const std::size_t most = literals ? 0 : std::min<std::size_t>(stream.size(), 1 << 20);
            const std::size_t length = 5 + below(numbers, below(numbers, 20) ? 30 : 4080);
            const std::size_t kind = most > 0 ? below(numbers, 8) : 0;
            const std::size_t farthest = below(numbers, 2) ? most : std::min<std::size_t>(most, 40);
            if (kind < 5) stream.literal(static_cast<char>(below(numbers, 256)));
            if (kind == 5) stream.match(1 + below(numbers, farthest), length);
            if (kind == 6 && stream.canRepeat()) stream.again(below(numbers, 4), length);
            if (kind == 7 && stream.canRepeat()) stream.same();
        }
        stream.endBlock(false);
    }
    stream.codes(9);
    stream.literal('.');
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
        writeFile(archive, handmadeArchive(entries, presentFormat, {.solid = true}));
        const std::size_t last = entries.back().data.size();
        const auto volumes = handmadeSet(entries, {1, 2, 3, 4, 6, last / 3, last - 1}, presentFormat);
        fs::create_directory(temporary / "other");
        if (isForOthers) {
            EXPECT_EQ(runCommand({"bsdtar", "-xf", archive, "-C", temporary / "other"}).errors, "");
        }
        EXPECT_EQ(rar({"x", archive, temporary / "plain"}).errors, "");
        EXPECT_EQ(rar({"x", writeSet(volumes), temporary / "set"}).errors, "");
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
        for (const std::size_t first : {3000u, tables ? 7'000'000u : 600'000u}) {
            std::string window;
            for (unsigned number = 0; number < 4; ++number) {
                const std::string name = std::to_string(first) + "-" + std::to_string(number);
                TokenStream stream =
                    randomStream(numbers, window, number == 0 ? first : std::size_t{number} * 20'000, tables);
                entries.push_back(storedFile(name + "s", name));
                contents[name + "s"] = name;
                entries.push_back(packedEntry(stream, name, stream.content(), number > 0));
                contents[name] = stream.content();
                window = stream.window();
            }
        }
        expectContents(entries, contents, tables);
    }
}

// A code of one length never falls into step, and one of three symbols at once.
TEST(LiteralBlock, comesBackFromAnywhereWithinIt)
{
    Numbers numbers(3);
    auto codes = std::make_unique<BlockCodes>();
    for (const std::size_t alphabet : {1u, 2u, 3u, 65u, 200u, 256u})
        for (const std::size_t size : {1u, 40u, 500u, 9000u, 400'000u})
            for (const bool isSkewed : {false, true}) {
                ByteBuffer content(size);
                for (std::uint8_t &byte : content)
                    byte = std::uint8_t(below(numbers, isSkewed ? 1 + below(numbers, alphabet) : alphabet));
                HuffmanEncoder encoder;
                const Bytes block = encoder.encode(content, true);
                const auto header = parseBlockHeader(block.first(blockHeaderSize(block)));
                ASSERT_TRUE(header);
                ByteBuffer payload(block.begin() + std::ptrdiff_t(header->headerSize), block.end());
                payload.resize(payload.size() + BitReader::padding);
                CodeLengths lengths{};
                BitReader bits(Bytes(payload).first(payload.size() - BitReader::padding), *header);
                ASSERT_TRUE(readCodeLengths(bits, lengths) && codes->build(lengths, size));
                ByteBuffer unpacked(roomForLiterals(bits, lengths));
                const auto count = unpackLiteralBlock(bits, lengths, *codes, unpacked, 1);
                ASSERT_EQ(count, size) << alphabet;
                EXPECT_TRUE(std::equal(content.begin(), content.end(), unpacked.begin())) << alphabet;
            }
}

TEST_F(UnpackerTest, filtersAreUndone)
{
    Numbers numbers(2);
    std::string original(400'000, '\0');
    for (char &byte : original)
        byte = "\xE8\xE9\xEB\0\0\0\xFF\xFF\1\2"[below(numbers, 10)];
    std::string packed = original;
    TokenStream stream;
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
    expectContents({packedEntry(stream, "file", original, false)}, {{"file", original}});
}

TEST_F(UnpackerTest, whatMakesNoSenseIsDamageOfOneEntry)
{
    const std::vector<std::pair<const char *, std::function<void(TokenStream &)>>> cases = {
        {"an old match where there was none", [](auto &s) { s.put(258, 9), s.put(0, 6); }},
        {"a distance of more than there is", [](auto &s) { s.put(262, 9), s.put(9, 6), s.put(0, 3); }},
        {"the largest distance", [](auto &s) { s.put(262, 9), s.put(63, 6), s.put(~0u, 26), s.put(15, 4); }},
        {"a symbol without a code", [](auto &s) { s.put(511, 9); }},
        {"half a match at the end", [](auto &s) { s.put(262, 9); }},
        {"a filter that never ends", [](auto &s) { s.filter(0, 100, 1); }},
        {"a filter over another's stretch", [](auto &s) { s.filter(2, 8, 1), s.filter(0, 8, 1); }},
        {"a filter too long", [](auto &s) { s.filter(0, 5 << 20, 1); }},
        {"a filter of no kind", [](auto &s) { s.filter(0, 8, 7); }},
        {"too many codes", [](auto &s) { s.endBlock(false), s.codes(8); }},
        {"more than was told", [](auto &s) { s.match(1, 2000); }}};
    for (const auto &[what, spoil] : cases) {
        TokenStream stream = literalStream("some text");
        const std::string told = stream.content() + "12345678";
        spoil(stream);
        const TokenStream whole = literalStream("x");
        TokenStream depends("x");
        depends.codes(9);
        depends.match(1, 5);
        HandmadeEntry large = packedEntry(whole, "large", "x", true);
        large.header.dictionary = 15;
        const HandmadeEntry bad = packedEntry(stream, "bad", told, false);
        writeFile(archive,
                  handmadeArchive({bad, packedEntry(depends, "lost", "xxxxx", true),
                                   packedEntry(whole, "whole", "x", false), large, storedFile("stored", "s")},
                                  presentFormat, {.solid = true}));
        for (const std::string command : {"x", "p"}) {
            fs::remove_all(out);
            fs::create_directory(out);
            const CommandResult result = rar({command, archive}, {.folder = out});
            SCOPED_TRACE(what + result.errors);
            EXPECT_TRUE(result.errors.starts_with("\nbad: checksum error\n\nlost "));
            EXPECT_TRUE(
                result.errors.ends_with("\n\nlarge needs a dictionary of 4096 MB to be unpacked, more "
                                        "than the 1024 MB that there are\n"));
            EXPECT_EQ(std::ranges::count(result.errors, '\n'), 6);
            if (command == "p") continue;
            EXPECT_EQ(readFile(out / "whole") + readFile(out / "stored"), "xs");
            EXPECT_EQ(entriesIn(out), 2u);
        }
    }
}
