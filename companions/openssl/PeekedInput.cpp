#include "PeekedInput.h"

#include "FileSource.h"

#include <algorithm>
#include <array>
#include <openssl/evp.h>
#include <unistd.h>

namespace {

constexpr std::size_t headSize = 128; // in bytes

std::string readHead(int descriptor)
{
    std::array<std::uint8_t, headSize> bytes;
    const ssize_t size = base::readFully(descriptor, bytes);
    return {bytes.begin(), bytes.begin() + std::max<ssize_t>(size, 0)};
}

} // namespace

PeekedInput::PeekedInput(const std::optional<std::string> &path, bool isOurs) : m_descriptor(STDIN_FILENO)
{
    if (path) {
        m_file = openInput(*path, isOurs, m_problem);
        if (!m_file) return;
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
