#pragma once

#include "Diagnostics.h"
#include "Headers.h"

#include <memory>

namespace archiver {

/// Takes the unpacked bytes of a file.
class ContentSink {
public:
    virtual ~ContentSink() = default;
    /// False where they can't be kept, which has been reported.
    virtual bool write(Bytes bytes) = 0;
};

/// What becomes of an archive's entries, on one thread. Every function reports what it can't do.
class EntryReceiver : public ContentSink {
public:
    virtual void folder(const FileHeader &) {}
    virtual void link(const FileHeader &) {}
    /// Its content comes in write(), then one of the two others, before the next file begins. False where it
    /// can't be made, and nothing comes.
    virtual bool beginFile(const FileHeader &) = 0;
    /// The content is complete and right.
    virtual void finishFile(const FileHeader &) {}
    /// It is not, and is wanted no more.
    virtual void abandonFile() {}
    /// Where the entry is put. While a file is under way, no other entry comes to its place or below it.
    /// Empty where that makes no difference.
    [[nodiscard]] virtual std::string place(const FileHeader &) const { return {}; }
};

/// Makes receivers for an archive's entries.
struct EntryReceivers {
    /// For a thread; what the receiver reports goes to those diagnostics. It is called on any thread.
    std::function<std::unique_ptr<EntryReceiver>(Diagnostics &)> make;
    /// All entries come one after the other, as they are in the archive.
    bool inOrder = false;
};

} // namespace archiver
