#pragma once

#include "Command.h"
#include "Companion.h"
#include "Headers.h"
#include "Tree.h"

#include <gtest/gtest.h>

/// Runs the archiver as the application does.
CommandResult rar(const Arguments &arguments, const CommandOptions &options = {});

/// What is said by a run that ends with a status other than 0; "success" by any other.
std::string failure(const CommandResult &result);

/// Text as `openssl enc -a` writes it: lines of 64 characters of base64, about `size` bytes.
std::string base64Text(std::size_t size);

/// A file whose last change was at `seconds` since 1970.
void writeDated(const fs::path &file, std::int64_t seconds, std::int64_t nanoseconds);

/// The volumes of a set from 1 on, as long as there are any; where there are none, the archive itself.
std::vector<fs::path> volumesOf(const fs::path &archive);

/// The folders below `out` into which our reader and those of others have extracted an archive or a set.
std::vector<fs::path> extractedByAll(const fs::path &archive, const fs::path &out);

/// An entry with its packed data, to be put into an archive by hand.
struct HandmadeEntry {
    archiver::FileHeader header;
    std::string data;
};
/// Header of a stored file with the right sizes and checksum.
HandmadeEntry storedFile(const std::string &name, const std::string &content);
/// The same of one that was packed to these blocks; a solid one goes on from the entry before.
HandmadeEntry packedFile(const std::string &name, const std::string &content, const std::string &blocks,
                         bool solid = false);
HandmadeEntry linkEntry(const std::string &name, const std::string &target,
                        archiver::LinkTarget::Kind kind = archiver::LinkTarget::Kind::Symbolic);
HandmadeEntry folderEntry(const std::string &name, unsigned mode = 0755);
std::string handmadeArchive(const std::vector<HandmadeEntry> &entries,
                            const archiver::HeaderFormat &format = archiver::presentFormat,
                            const archiver::MainHeader &main = {});
/// The volumes of a set that ends with the last entry's data, which is cut at these places.
std::vector<std::string> handmadeSet(const std::vector<HandmadeEntry> &entries,
                                     const std::vector<std::size_t> &cuts,
                                     const archiver::HeaderFormat &format);

archiver::Bytes bytesOf(const std::string &text);

/// Each test has a folder of its own, and usual names for what it puts there.
class ArchiverTest : public testing::Test {
protected:
    /// Writes a set of these volumes and no more. The first one's path.
    [[nodiscard]] fs::path writeSet(const std::vector<std::string> &volumes) const;

    TemporaryFolder temporary;
    const fs::path archive = temporary / "a.rar";
    const fs::path source = temporary / "source";
    const fs::path out = temporary / "out";
    /// Where `source` comes to be when it is extracted to `out`.
    const fs::path extracted = out / source.relative_path();
};
