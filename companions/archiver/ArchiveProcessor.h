#pragma once

#include "ContentSink.h"
#include "Diagnostics.h"
#include "VolumeSource.h"

#include <string>

namespace archiver {

/// Hands every entry of an archive of any kind to `receiver`, starting with the volume `path`. What is wrong
/// is reported to `diagnostics`; a file that is damaged does not keep the ones behind it from being handed
/// on.
void processArchive(const std::string &path, EntryReceiver &receiver, Diagnostics &diagnostics);

/// The same for an archive given by its volumes. What only libarchive could unpack counts as damaged
/// here.
void processVolumes(VolumeSource &volumes, EntryReceiver &receiver, Diagnostics &diagnostics);

/// Reads all of it and checks it, keeping nothing.
class EntryTester final : public EntryReceiver, public ContentSink {
public:
    void folder(const FileHeader &) override {}
    void link(const FileHeader &) override {}
    ContentSink *beginFile(const FileHeader &) override { return this; }
    void finishFile(const FileHeader &) override {}
    void abandonFile() override {}
    bool write(Bytes) override { return true; }
};

} // namespace archiver
