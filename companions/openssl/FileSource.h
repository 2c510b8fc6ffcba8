#pragma once

#include "smime/ByteStreams.h"

#include <vector>

class Fault;

/// The bytes of an open file, which stays the caller's. A signal that asks to stop makes them end with a
/// fault.
class FileSource final : public ByteSource {
public:
    FileSource(int descriptor, Fault &fault);
    [[nodiscard]] Bytes read() override;

private:
    int m_descriptor;
    Fault &m_fault;
    std::vector<std::uint8_t> m_buffer;
};
