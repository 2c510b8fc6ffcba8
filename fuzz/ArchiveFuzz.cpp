#include "ArchiveInput.h"
#include "ArchiveProcessor.h"
#include "ArchiveRepair.h"
#include "ArchiveSeeds.h"
#include "EntryName.h"
#include "Extractor.h"
#include "HuffmanDecoder.h"
#include "TemporaryFolder.h"
#include "VolumeNames.h"

#include <algorithm>
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

void require(bool condition, const char *what)
{
    if (condition) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

/// Counts what it is given, and sees that a file ends before the next one begins.
class Counter final : public EntryReceiver, private ContentSink {
public:
    void folder(const FileHeader &) override { require(!m_open, "a folder inside a file"); }
    void link(const FileHeader &header) override
    {
        require(!m_open && header.link, "a link without a target");
    }
    ContentSink *beginFile(const FileHeader &) override
    {
        require(!std::exchange(m_open, true), "a file inside a file");
        return this;
    }
    void finishFile(const FileHeader &) override
    {
        require(std::exchange(m_open, false), "an end without a file");
    }
    void abandonFile() override { require(std::exchange(m_open, false), "an end without a file"); }
    [[nodiscard]] std::uint64_t size() const { return m_size; }

private:
    bool write(Bytes bytes) override
    {
        require(m_open, "content without a file");
        m_size += bytes.size();
        return true;
    }

    bool m_open = false;
    std::uint64_t m_size = 0;
};

void testInMemory(const ArchiveInput &input)
{
    std::size_t size = 0;
    for (const ByteBuffer &volume : input.volumes)
        size += volume.size();
    std::string messages;
    Diagnostics diagnostics(messages);
    MemoryVolumes volumes(input.volumes);
    Counter counter;
    processVolumes(volumes, counter, diagnostics);
    require(counter.size() <= 8 * size, "no symbol is shorter than a bit");
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
    Counter counter;
    processArchive(first, counter, diagnostics);

    const fs::path parent = folder / "parent";
    fs::create_directories(parent / "out");
    const Guard guard(parent);
    Destination destination;
    require(destination.open(parent / "out"), "no destination");
    const bool flat = input.flags & ArchiveInput::flat;
    Extractor extractor(destination, flat ? Extractor::Paths::Drop : Extractor::Paths::Keep, diagnostics);
    processArchive(first, extractor, diagnostics);
    extractor.finish();
    guard.check();
}

void processArchiveInput(InputKind kind, Bytes bytes)
{
    ArchiveInput input = ArchiveInput::parse(bytes);
    if (!(input.flags & ArchiveInput::damaged)) std::ranges::for_each(input.volumes, repairArchive);
    kind == InputKind::InMemory ? testInMemory(input) : processOnDisk(input);
}

void unpackBlocks(Bytes bytes)
{
    HuffmanDecoder decoder;
    ByteBuffer output(64 << 10);
    while (const std::optional<BlockHeader> header = parseBlockHeader(bytes)) {
        bytes = bytes.subspan(header->headerSize);
        const Bytes payload = bytes.first(std::min(bytes.size(), header->payloadSize));
        bytes = bytes.subspan(payload.size());
        // In a buffer of its own, so that a read too far is seen.
        ByteBuffer padded(payload.begin(), payload.end());
        padded.resize(payload.size() + HuffmanDecoder::padding);
        if (decoder.start(Bytes(padded).first(payload.size()), *header) != HuffmanDecoder::Start::Ready)
            return;
        std::size_t size = 0;
        while (const std::size_t count = decoder.decode(output))
            size += count;
        require(size <= 8 * payload.size(), "no symbol is shorter than a bit");
    }
}

/// Keeps the content of the one file that it expects.
class Collector final : public EntryReceiver, private ContentSink {
public:
    void folder(const FileHeader &) override {}
    void link(const FileHeader &) override {}
    ContentSink *beginFile(const FileHeader &) override { return this; }
    void finishFile(const FileHeader &) override {}
    void abandonFile() override {}
    ByteBuffer content;

private:
    bool write(Bytes bytes) override
    {
        putBytes(content, bytes);
        return true;
    }
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
    Collector collector;
    processVolumes(source, collector, diagnostics);
    require(messages.empty() && collector.content == content, "what was archived comes back");
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
