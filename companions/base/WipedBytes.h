#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>

namespace base {

/// Overwrites memory with zeros in a way that the compiler does not leave out.
inline void wipe(void *memory, std::size_t size)
{
    if (size > 0) explicit_bzero(memory, size);
}

/// Room for bytes that may be of a secret: they are in memory no longer once it is gone. What is in it at
/// first is anything.
class WipedBytes {
public:
    WipedBytes() = default;
    explicit WipedBytes(std::size_t size)
        : m_bytes(std::make_unique_for_overwrite<std::uint8_t[]>(size)), m_size(size)
    {
    }
    ~WipedBytes() { wipe(m_bytes.get(), m_size); }
    WipedBytes(WipedBytes &&other) noexcept { *this = std::move(other); }
    WipedBytes &operator=(WipedBytes &&other) noexcept
    {
        std::swap(m_bytes, other.m_bytes);
        std::swap(m_size, other.m_size);
        return *this;
    }
    WipedBytes(const WipedBytes &) = delete;
    WipedBytes &operator=(const WipedBytes &) = delete;

    [[nodiscard]] std::uint8_t *data() { return m_bytes.get(); }
    [[nodiscard]] std::size_t size() const { return m_size; }

private:
    std::unique_ptr<std::uint8_t[]> m_bytes;
    std::size_t m_size = 0;
};

} // namespace base
