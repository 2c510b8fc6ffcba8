#pragma once

#include "Command.h"
#include "ContentSink.h"
#include "Headers.h"
#include "VolumeSource.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// Runs the archiver as the application does.
CommandResult rar(std::vector<std::string> arguments, const CommandOptions &options = {});

/// First pass: a folder, stored. Second pass: a file, packed; `volume` is a switch such as "-v10", or empty.
CommandResult addTree(const std::filesystem::path &archive, const std::filesystem::path &source);
CommandResult packFile(const std::filesystem::path &archive, const std::filesystem::path &file,
                       const std::string &volume = "");

/// Text as `openssl enc -a` writes it: lines of 64 characters of base64, about `size` bytes.
std::string base64Text(std::size_t size);

/// The volumes of a set from 1 on, as long as there are any.
std::vector<std::filesystem::path> volumesOf(const std::filesystem::path &archive);

/// An entry with its packed data, to be put into an archive by hand.
struct HandmadeEntry {
    archiver::FileHeader header;
    std::string data;
};
/// Header of a stored file with the right sizes and checksum.
HandmadeEntry storedFile(const std::string &name, const std::string &content);
HandmadeEntry symbolicLink(const std::string &name, const std::string &target);
HandmadeEntry folderEntry(const std::string &name, unsigned mode = 0755);
/// `solid`: it says that entries may share a dictionary.
std::string handmadeArchive(const std::vector<HandmadeEntry> &entries, bool solid = false);

archiver::Bytes bytesOf(const std::string &text);

/// Keeps contents by name.
class CollectingReceiver final : public archiver::EntryReceiver, private archiver::ContentSink {
public:
    std::map<std::string, std::string> files; ///< whole ones only
    void folder(const archiver::FileHeader &) override {}
    void link(const archiver::FileHeader &) override {}
    archiver::ContentSink *beginFile(const archiver::FileHeader &) override;
    void finishFile(const archiver::FileHeader &header) override;
    void abandonFile() override {}

private:
    bool write(archiver::Bytes bytes) override;
    std::string m_content;
};

/// Volumes in memory, named 1, 2, 3 …
class MemoryVolumes final : public archiver::VolumeSource {
public:
    explicit MemoryVolumes(std::vector<std::string> volumes) : m_volumes(std::move(volumes)) {}
    std::unique_ptr<archiver::ByteSource> open(std::size_t index) override;
    [[nodiscard]] std::string name(std::size_t index) const override { return std::to_string(index + 1); }

private:
    std::vector<std::string> m_volumes;
};
