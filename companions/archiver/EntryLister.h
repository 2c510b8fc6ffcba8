#pragma once

#include "ContentSink.h"
#include "Diagnostics.h"

namespace archiver {

/// Prints the name of each entry on standard output, as the bytes that it has on disk, and a line feed.
/// Content isn't looked at.
class EntryLister final : public EntryReceiver {
public:
    explicit EntryLister(Diagnostics &diagnostics) : m_diagnostics(diagnostics) {}

    void folder(const FileHeader &header) override { add(header); }
    void link(const FileHeader &header) override { add(header); }
    ContentSink *beginFile(const FileHeader &header) override;
    void finishFile(const FileHeader &) override {}
    void abandonFile() override {}

    /// Prints what is left; after the last entry.
    void finish();

private:
    void add(const FileHeader &header);

    Diagnostics &m_diagnostics;
    ByteBuffer m_lines;
    bool m_failed = false;
};

} // namespace archiver
