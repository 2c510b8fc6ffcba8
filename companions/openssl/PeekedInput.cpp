#include "PeekedInput.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <openssl/evp.h>
#include <unistd.h>

namespace {

constexpr std::size_t headSize = 128; // in bytes

std::string readHead(int descriptor)
{
    std::array<char, headSize> bytes;
    std::size_t size = 0;
    while (size < bytes.size()) {
        const ssize_t count = read(descriptor, bytes.data() + size, bytes.size() - size);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) break;
        size += static_cast<std::size_t>(count);
    }
    return {bytes.data(), size};
}

} // namespace

PeekedInput::PeekedInput(const std::optional<std::string> &path) : m_descriptor(STDIN_FILENO)
{
    if (path) {
        m_file = FileDescriptor(open(path->c_str(), O_RDONLY | O_CLOEXEC));
        if (!m_file.isOpen()) return; // the tool will say why
        m_descriptor = m_file.get();
    }
    const off_t start = lseek(m_descriptor, 0, SEEK_CUR);
    m_head = readHead(m_descriptor);
    m_isStream = start < 0 || lseek(m_descriptor, start, SEEK_SET) != start;
}

std::optional<BegunStream> PeekedInput::stream() const
{
    if (!m_isStream) return std::nullopt;
    return BegunStream{m_descriptor, m_head};
}

std::string decodeBase64(const std::string &text)
{
    std::string letters = text;
    std::erase_if(letters, [](char c) { return c == '\n' || c == '\r'; });
    // Groups with padding stand at the end only, and tell nothing.
    const std::size_t size = std::min(letters.find('='), letters.size()) / 4 * 4;
    std::string bytes(size / 4 * 3, '\0');
    const int decoded =
        EVP_DecodeBlock(reinterpret_cast<unsigned char *>(bytes.data()),
                        reinterpret_cast<const unsigned char *>(letters.data()), static_cast<int>(size));
    return decoded < 0 ? std::string() : bytes;
}
