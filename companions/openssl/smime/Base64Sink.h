#pragma once

#include "ByteStreams.h"

#include <vector>

/// Hands on the base64 text of what is written to it.
class Base64Sink final : public ByteSink {
public:
    explicit Base64Sink(ByteSink &text);

    [[nodiscard]] bool write(Bytes bytes) override;
    /// Hands on the last line, which may be shorter than the others.
    [[nodiscard]] bool finish();

private:
    bool encode(Bytes bytes);

    ByteSink &m_sink;
    std::vector<std::uint8_t> m_text;
    std::vector<std::uint8_t> m_begun; ///< less than a line
};
