#pragma once

#include "Headers.h"

namespace archiver {

/// Takes the unpacked bytes of a file.
class ContentSink {
public:
    virtual ~ContentSink() = default;
    /// False where they can't be kept, which has been reported.
    virtual bool write(Bytes bytes) = 0;
};

/// What becomes of an archive's entries. Every function reports what it can't do.
class EntryReceiver {
public:
    virtual ~EntryReceiver() = default;
    virtual void folder(const FileHeader &header) = 0;
    virtual void link(const FileHeader &header) = 0;
    /// Where the content goes; null where the file can't be made.
    virtual ContentSink *beginFile(const FileHeader &header) = 0;
    /// The content is complete and right.
    virtual void finishFile(const FileHeader &header) = 0;
    /// It is not, and is wanted no more; or it will come once again, from another beginFile().
    virtual void abandonFile() = 0;
};

} // namespace archiver
