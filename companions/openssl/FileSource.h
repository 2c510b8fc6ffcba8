#pragma once

#include "WipedBytes.h"
#include "smime/ByteStreams.h"

#include <string>

class Fault;

/// Opens a file to read from. `isOurs`: it has to be a regular file under that very name; what waits behind a
/// link or a pipe could be anything, or nothing for ever. Closed: `problem` is a sentence that says why.
[[nodiscard]] base::FileDescriptor openInput(const std::string &path, bool isOurs, std::string &problem);

/// The bytes of an open file, which stays the caller's. A signal that asks to stop makes them end with a
/// fault.
class FileSource final : public ByteSource {
public:
    FileSource(int descriptor, Fault &fault);
    [[nodiscard]] Bytes read() override;

private:
    int m_descriptor;
    Fault &m_fault;
    base::WipedBytes m_buffer;
};
