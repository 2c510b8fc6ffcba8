#include "Rar.h"

#include "HuffmanEncoder.h"
#include "VolumeSource.h"

#include <fcntl.h>

CommandResult rar(const Arguments &arguments, const CommandOptions &options)
{
    return runCommand(Arguments{QUILLORENT_RAR} + arguments, options);
}

std::string failure(const CommandResult &result) { return result.status != 0 ? result.errors : "success"; }

std::string base64Text(std::size_t size)
{
    constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text = randomBytes(size, 7);
    for (std::size_t index = 0; index < size; ++index)
        text[index] = index % 65 == 64 ? '\n' : alphabet[static_cast<unsigned char>(text[index]) % 64];
    return text;
}

void writeDated(const fs::path &file, std::int64_t seconds, std::int64_t nanoseconds)
{
    writeFile(file, "dated");
    const timespec times[2] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
    ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
}

std::vector<fs::path> volumesOf(const fs::path &archive)
{
    for (std::size_t digits = 1; digits < 5; ++digits) {
        std::vector<fs::path> paths;
        const std::string base = archiver::withoutExtension(archive.string());
        while (fs::exists(archiver::volumePath(base, paths.size() + 1, digits)))
            paths.emplace_back(archiver::volumePath(base, paths.size() + 1, digits));
        if (!paths.empty()) return paths;
    }
    return {archive};
}

std::vector<fs::path> extractedByAll(const fs::path &archive, const fs::path &out)
{
    const std::vector<fs::path> volumes = volumesOf(archive);
    std::string joined;
    for (const fs::path &volume : volumes)
        joined += readFile(volume);
    writeFile(out / "joined", joined);
    std::vector<fs::path> folders{out / "ours", out / "bsdtar", out / "unar"};
    EXPECT_EQ(failure(rar({"x", "-idq", volumes.front(), folders[0]})), "success");
    // Into a folder: on its way to a pipe, an empty entry makes bsdtar write zeros without end now and then.
    fs::create_directory(folders[1]);
    EXPECT_EQ(runCommand({"bsdtar", "-xf", out / "joined", "-C", folders[1]}).errors, "");
    const CommandResult third = runCommand({"unar", "-q", "-D", "-o", folders[2], volumes.front()});
    EXPECT_EQ(third.status, 0) << third.output;
    return folders;
}

archiver::Bytes bytesOf(const std::string &text)
{
    return {reinterpret_cast<const std::uint8_t *>(text.data()), text.size()};
}

HandmadeEntry storedFile(const std::string &name, const std::string &content)
{
    HandmadeEntry entry;
    entry.header.name = name;
    entry.header.mode = 0100644;
    entry.header.unpackedSize = content.size();
    entry.header.packedSize = content.size();
    entry.header.crc = archiver::crc32(bytesOf(content));
    entry.data = content;
    return entry;
}

HandmadeEntry packedFile(const std::string &name, const std::string &content, const std::string &blocks,
                         bool solid)
{
    HandmadeEntry entry = storedFile(name, content);
    entry.data = blocks;
    entry.header.packedSize = blocks.size();
    entry.header.method = archiver::HuffmanEncoder::method;
    entry.header.dictionary = archiver::HuffmanEncoder::dictionary;
    entry.header.solid = solid;
    return entry;
}

HandmadeEntry linkEntry(const std::string &name, const std::string &target, archiver::LinkTarget::Kind kind)
{
    HandmadeEntry entry = storedFile(name, "");
    if (kind == archiver::LinkTarget::Kind::Symbolic) entry.header.mode = 0120777;
    entry.header.link = archiver::LinkTarget{kind, false, target};
    return entry;
}

HandmadeEntry folderEntry(const std::string &name, unsigned mode)
{
    HandmadeEntry entry = storedFile(name, "");
    entry.header.mode = 040000 | mode;
    entry.header.folder = true;
    return entry;
}

std::string handmadeArchive(const std::vector<HandmadeEntry> &entries, const archiver::HeaderFormat &format,
                            const archiver::MainHeader &main)
{
    archiver::ByteBuffer bytes(format.signature.begin(), format.signature.end());
    format.putMain(bytes, main);
    for (const HandmadeEntry &entry : entries) {
        format.putFile(bytes, entry.header);
        archiver::putText(bytes, entry.data);
    }
    format.putEnd(bytes, main.volume && !entries.empty() && entries.back().header.continuesAfter);
    return {bytes.begin(), bytes.end()};
}

std::vector<std::string> handmadeSet(const std::vector<HandmadeEntry> &entries,
                                     const std::vector<std::size_t> &cuts,
                                     const archiver::HeaderFormat &format)
{
    std::vector<std::string> volumes;
    std::vector<HandmadeEntry> present = entries;
    std::size_t start = 0;
    for (std::size_t index = 0; index <= cuts.size(); ++index) {
        HandmadeEntry &part = present.back();
        part = entries.back();
        const bool isLast = index == cuts.size();
        const std::size_t end = isLast ? part.data.size() : cuts[index];
        part.data = part.data.substr(start, end - start);
        part.header.packedSize = part.data.size();
        part.header.continuesBefore = index > 0;
        part.header.continuesAfter = !isLast;
        if (!isLast) part.header.crc = archiver::crc32(bytesOf(part.data));
        volumes.push_back(handmadeArchive(
            present, format, {.volume = true, .volumeIndex = index, .solid = entries.back().header.solid}));
        present = {part};
        start = end;
    }
    return volumes;
}

fs::path ArchiverTest::writeSet(const std::vector<std::string> &volumes) const
{
    for (const fs::path &old : volumesOf(temporary / "set.rar"))
        fs::remove(old);
    for (std::size_t index = 0; index < volumes.size(); ++index)
        writeFile(archiver::volumePath((temporary / "set").string(), index + 1, 1), volumes[index]);
    return temporary / "set.part1.rar";
}
