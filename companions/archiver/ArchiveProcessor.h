#pragma once

#include "Content.h"
#include "VolumeSource.h"

namespace archiver {

/// Hands every entry of an archive of any kind to receivers, on as many threads as there are processors,
/// starting with the volume `path`. What is wrong is reported to `diagnostics`, in the entries' order; a file
/// that is damaged does not keep the ones behind it from being handed on.
void processArchive(const std::string &path, const EntryReceivers &receivers, Diagnostics &diagnostics);

/// The same for an archive of RAR 5 given by its volumes.
void processVolumes(VolumeSource &volumes, const EntryReceivers &receivers, Diagnostics &diagnostics);

/// Reads all of it and checks it, keeping nothing.
[[nodiscard]] EntryReceivers entryTesters();

/// Calls `visit` with the header of each entry, without a look at the content.
void visitEntries(const std::string &path, const std::function<void(const FileHeader &)> &visit,
                  Diagnostics &diagnostics);

} // namespace archiver
