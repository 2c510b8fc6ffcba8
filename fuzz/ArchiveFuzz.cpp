#include "ArchiveInput.h"
#include "ArchiveProcessor.h"
#include "ArchiveRepair.h"
#include "ArchiveSeeds.h"
#include "EntryName.h"
#include "Extractor.h"
#include "LiteralBlock.h"
#include "TemporaryFolder.h"
#include "Unpacker.h"

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <utility>

namespace fs = std::filesystem;
using namespace archiver;

namespace {

bool require(bool condition, const char *what)
{
    if (condition) return true;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

/// Counts what it is given, and sees that a file ends before the next one begins.
class Counter final : public EntryReceiver {
public:
    explicit Counter(std::atomic<std::uint64_t> &size) : m_size(size) {}
    void folder(const FileHeader &) override { require(!m_open, "a folder inside a file"); }
    void link(const FileHeader &header) override
    {
        require(!m_open && header.link, "a link without a target");
    }
    bool beginFile(const FileHeader &header) override
    {
        m_left = header.sizeUnknown ? mostOfOne : header.unpackedSize;
        return require(!std::exchange(m_open, true), "a file inside a file");
    }
    void finishFile(const FileHeader &header) override
    {
        require(std::exchange(m_open, false), "an end without a file");
        require(header.sizeUnknown || m_left == 0, "a file that isn't whole");
    }
    void abandonFile() override { require(std::exchange(m_open, false), "an end without a file"); }
    bool write(Bytes bytes) override
    {
        require(m_open && bytes.size() <= m_left, "content without a file, or more than it has");
        m_left -= bytes.size();
        m_size += bytes.size();
        return m_size < mostOfAll;
    }

private:
    static constexpr std::uint64_t mostOfOne = 1ull << 62;
    static constexpr std::uint64_t mostOfAll = 64 << 20;
    std::atomic<std::uint64_t> &m_size;
    std::uint64_t m_left = 0;
    bool m_open = false;
};

/// Of all threads together.
EntryReceivers counters(std::atomic<std::uint64_t> &size, bool inOrder)
{
    return {[&size](Diagnostics &) { return std::make_unique<Counter>(size); }, inOrder};
}

void testInMemory(const ArchiveInput &input)
{
    std::size_t size = 0;
    for (const ByteBuffer &volume : input.volumes)
        size += volume.size();
    std::string messages;
    Diagnostics diagnostics(messages);
    MemoryVolumes volumes(input.volumes);
    std::atomic<std::uint64_t> count = 0;
    processVolumes(volumes, counters(count, input.flags & ArchiveInput::flat), diagnostics);
    require(messages.size() <= 1000 + 10 * size, "messages without end");
}

/// A file beside the destination, which nothing may touch.
class Guard {
public:
    explicit Guard(const fs::path &parent) : m_parent(parent)
    {
        writeFile(parent / "guard", "untouched");
        m_before = status();
    }
    void check() const
    {
        std::size_t entries = 0;
        for (const fs::directory_entry &entry : fs::directory_iterator(m_parent)) {
            require(entry.path().filename() == "guard" || entry.path().filename() == "out",
                    "something outside");
            ++entries;
        }
        const struct stat after = status();
        require(entries == 2 && after.st_ino == m_before.st_ino && after.st_mode == m_before.st_mode &&
                    after.st_nlink == 1 && after.st_mtim.tv_sec == m_before.st_mtim.tv_sec &&
                    after.st_mtim.tv_nsec == m_before.st_mtim.tv_nsec &&
                    readFile(m_parent / "guard") == "untouched",
                "the file outside has changed");
    }

private:
    [[nodiscard]] struct stat status() const
    {
        struct stat status {};
        require(lstat((m_parent / "guard").c_str(), &status) == 0, "the file outside is gone");
        return status;
    }
    fs::path m_parent;
    struct stat m_before {};
};

void processOnDisk(const ArchiveInput &input)
{
    const TemporaryFolder folder;
    std::string path = folder / (input.flags & ArchiveInput::oldNames ? "a.rar" : "a.part1.rar");
    const std::string first = path;
    for (const ByteBuffer &volume : input.volumes) {
        writeFile(path, {volume.begin(), volume.end()});
        path = nextVolumePath(path);
    }
    std::string messages;
    Diagnostics diagnostics(messages);
    std::atomic<std::uint64_t> count = 0;
    processArchive(first, counters(count, input.flags & ArchiveInput::flat), diagnostics);

    const fs::path parent = folder / "parent";
    fs::create_directories(parent / "out");
    const Guard guard(parent);
    const bool flat = input.flags & ArchiveInput::flat;
    extractArchive(first, parent / "out", flat ? Paths::Drop : Paths::Keep, diagnostics);
    guard.check();
}

void processArchiveInput(InputKind kind, Bytes bytes)
{
    ArchiveInput input = ArchiveInput::parse(bytes);
    if (!(input.flags & ArchiveInput::damaged)) std::ranges::for_each(input.volumes, repairArchive);
    kind == InputKind::InMemory ? testInMemory(input) : processOnDisk(input);
}

/// Keeps some content.
class Text final : public ContentSink {
public:
    ByteBuffer content;
    bool write(Bytes bytes) override
    {
        putBytes(content, bytes);
        return content.size() < most;
    }

private:
    static constexpr std::size_t most = 16 << 20;
};

/// In buffers of their own, so that a read too far is seen.
ByteBuffer padded(Bytes payload)
{
    ByteBuffer copy(payload.begin(), payload.end());
    copy.resize(payload.size() + BitReader::padding);
    return copy;
}

/// The block as a thread unpacks it that knows none of the others; false where it can't.
bool unpackAlone(const ByteBuffer &payload, const BlockHeader &header, Unpacker &unpacker, Text &text)
{
    BitReader bits(Bytes(payload).first(payload.size() - BitReader::padding), header);
    CodeLengths lengths{};
    auto codes = std::make_unique<BlockCodes>();
    if (!header.hasTables || !readCodeLengths(bits, lengths) || !areLiteralsOnly(lengths) ||
        !codes->build(lengths, payload.size()))
        return false;
    ByteBuffer literals(roomForLiterals(bits, lengths));
    const auto count = unpackLiteralBlock(bits, lengths, *codes, literals, payload.size() % 1000);
    if (!count) return false;
    if (unpacker.onlyLiterals()) putBytes(text.content, Bytes(literals).first(*count));
    return unpacker.literals(literals, *count, lengths, text) == Unpacker::Outcome::Unpacked;
}

/// Entries of blocks, twice: the second time, blocks of literals are unpacked by themselves.
void unpackBlocks(Bytes bytes)
{
    ByteReader reader(bytes);
    Unpacker plain;
    Unpacker mixed;
    while (reader.remaining() > 0) {
        const unsigned options = reader.u8();
        const std::uint64_t dictionary = std::uint64_t{128 << 10} << (options >> 1 & 7);
        Text text;
        Text same;
        plain.begin(dictionary, options & 1);
        mixed.begin(dictionary, options & 1);
        auto outcome = Unpacker::Outcome::Unpacked;
        for (BlockHeader header; !header.last && outcome == Unpacker::Outcome::Unpacked;) {
            const unsigned flags = reader.u8();
            header.usedBitsInLastByte = (flags & 7) + 1;
            header.last = flags & 0x40;
            header.hasTables = flags & 0x80;
            const ByteBuffer payload =
                padded(reader.take(std::min<std::size_t>(reader.u16(), reader.remaining())));
            const Bytes block = Bytes(payload).first(payload.size() - BitReader::padding);
            outcome = plain.block(block, header, text);
            if (!unpackAlone(payload, header, mixed, same))
                require(mixed.block(block, header, same) == outcome, "one outcome both ways");
            if (reader.remaining() == 0) break;
        }
        if (outcome != Unpacker::Outcome::Unpacked) return;
        outcome = plain.end(text);
        require(mixed.end(same) == outcome && text.content == same.content, "one content both ways");
        if (outcome != Unpacker::Outcome::Unpacked) return;
    }
}

/// Keeps the content of the one file that it expects.
class Collector final : public EntryReceiver {
public:
    explicit Collector(ByteBuffer &content) : m_content(content) {}
    bool beginFile(const FileHeader &) override { return true; }
    bool write(Bytes bytes) override
    {
        putBytes(m_content, bytes);
        return true;
    }

private:
    ByteBuffer &m_content;
};

void roundTrip(Bytes bytes)
{
    ByteReader reader(bytes);
    const unsigned how = reader.u8();
    const std::uint64_t volume = reader.u8();
    const Bytes pattern = reader.take(reader.remaining());
    ByteBuffer content;
    // Many blocks now and then only: they take their time.
    for (unsigned copies = how >= 0xFE ? 256 : 1 + (how >> 5); copies > 0; --copies)
        putBytes(content, pattern);
    std::string messages;
    Diagnostics diagnostics(messages);
    const auto packing = how & 1 ? ArchiveWriter::Packing{0} : ArchiveWriter::Packing{5};
    // Enough for the headers, and not so little that there are thousands.
    const std::optional<std::uint64_t> volumeSize =
        volume == 0 ? std::nullopt : std::optional(200 + volume * (1 + content.size() / 5000));
    const std::vector<ByteBuffer> volumes = writeVolumes(content, packing, volumeSize, diagnostics);
    MemoryVolumes source(volumes);
    ByteBuffer found;
    const auto make = [&found](Diagnostics &) { return std::make_unique<Collector>(found); };
    processVolumes(source, {make}, diagnostics);
    require(messages.empty() && found == content, "what was archived comes back");
}

void storeName(Bytes bytes)
{
    const std::string name(bytes.begin(), bytes.end());
    require(decodeName(encodeName(name)) == name, "a name comes back");
}

void handle(Bytes input)
{
    ByteReader reader(input);
    const auto kind = InputKind(reader.u8() % inputKinds);
    const Bytes rest = reader.take(reader.remaining());
    switch (kind) {
    case InputKind::InMemory:
    case InputKind::OnDisk:
        return processArchiveInput(kind, rest);
    case InputKind::Blocks:
        return unpackBlocks(rest);
    case InputKind::RoundTrip:
        return roundTrip(rest);
    case InputKind::Name:
        return storeName(rest);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments)
{
    // A full disk, sooner than it would come: libarchive unpacks some kilobytes to gigabytes.
    constexpr rlim_t mostBytes = 4 << 20;
    const rlimit limit{mostBytes, mostBytes};
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, SIG_IGN);
    // A new corpus starts with what our own writer makes.
    for (int index = 1; index < *count; ++index)
        if (std::error_code error; fs::is_directory((*arguments)[index], error)) {
            if (fs::is_empty((*arguments)[index])) writeSeeds((*arguments)[index]);
            break;
        }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    handle({data, size});
    return 0;
}
