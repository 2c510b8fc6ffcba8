#pragma once

#include "FileDescriptor.h"

namespace base {

/// Bytes that come in pieces.
class ByteSource {
public:
    virtual ~ByteSource() = default;
    /// The next piece, valid until the next call. Empty: the end, or a failure that the source reported.
    [[nodiscard]] virtual Bytes read() = 0;
};

/// Where bytes go to.
class ByteSink {
public:
    virtual ~ByteSink() = default;
    /// False: they could not all be written. The sink knows why.
    [[nodiscard]] virtual bool write(Bytes bytes) = 0;
};

} // namespace base
