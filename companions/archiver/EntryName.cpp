#include "EntryName.h"

#include <algorithm>

namespace archiver {

namespace {

constexpr std::string_view marker = "\xEF\xBF\xBE"; // U+FFFE

void appendMapped(std::string &name, unsigned char byte)
{
    name += '\xEE';
    name += static_cast<char>(0x80 | byte >> 6);
    name += static_cast<char>(0x80 | (byte & 0x3F));
}

/// Whether `sequence` is U+E080 to U+E0FF, what appendMapped() writes for a byte that can't be ASCII.
bool isMapped(std::string_view sequence)
{
    if (sequence.size() != 3 || sequence[0] != '\xEE') return false;
    const auto second = static_cast<unsigned char>(sequence[1]);
    return second == 0x82 || second == 0x83;
}

char mappedByte(std::string_view sequence)
{
    const auto second = static_cast<unsigned char>(sequence[1]);
    const auto third = static_cast<unsigned char>(sequence[2]);
    return static_cast<char>((second & 3) << 6 | (third & 0x3F));
}

} // namespace

std::vector<std::string> componentsOf(const std::string &path)
{
    std::vector<std::string> components;
    for (std::size_t start = 0; start <= path.size();) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        std::string part = path.substr(start, end - start);
        if (!part.empty() && part != ".") components.push_back(std::move(part));
        start = end + 1;
    }
    return components;
}

std::size_t utf8Length(std::string_view text)
{
    const auto at = [text](std::size_t index) {
        return index < text.size() ? static_cast<unsigned char>(text[index]) : static_cast<unsigned char>(0);
    };
    const unsigned char first = at(0);
    if (text.empty() || first < 0x80) return text.empty() ? 0 : 1;
    if (first < 0xC2 || first > 0xF4) return 0;
    const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    // No longer forms than needed, no surrogates, and nothing behind the last code point.
    const unsigned char low = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
    const unsigned char high = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
    if (at(1) < low || at(1) > high) return 0;
    for (std::size_t index = 2; index < length; ++index)
        if (at(index) < 0x80 || at(index) > 0xBF) return 0;
    return length;
}

std::string encodeName(std::string_view bytes)
{
    std::string name;
    name.reserve(bytes.size());
    bool marked = false;
    bool componentIsMarked = false;
    while (!bytes.empty()) {
        const std::size_t length = utf8Length(bytes);
        const std::string_view sequence = bytes.substr(0, std::max<std::size_t>(length, 1));
        if (sequence == "/") componentIsMarked = false;
        // A name may really hold the marker, or the mapped characters: those have to survive as well.
        const bool plain = length > 0 && sequence != marker && !(marked && isMapped(sequence));
        if (plain) {
            name += sequence;
        } else {
            if (!componentIsMarked) name += marker;
            marked = componentIsMarked = true;
            for (const char byte : sequence)
                appendMapped(name, static_cast<unsigned char>(byte));
        }
        bytes.remove_prefix(sequence.size());
    }
    return name;
}

std::string decodeName(std::string_view stored)
{
    std::string name;
    name.reserve(stored.size());
    // Archives that this program made some time ago have one marker for all components from it on.
    bool marked = false;
    bool componentIsMarked = false;
    while (!stored.empty()) {
        const std::string_view sequence = stored.substr(0, std::max<std::size_t>(utf8Length(stored), 1));
        if (sequence == "/") componentIsMarked = false;
        if (!componentIsMarked && sequence == marker)
            marked = componentIsMarked = true;
        else if (marked && isMapped(sequence))
            name += mappedByte(sequence);
        else
            name += sequence;
        stored.remove_prefix(sequence.size());
    }
    return name;
}

std::string printable(std::string_view name)
{
    constexpr std::string_view digits = "0123456789abcdef";
    constexpr std::size_t longest = 4096; // no path that the system takes is longer
    std::string text;
    if (name.size() > longest) return printable(name.substr(0, longest)) + "…";
    while (!name.empty()) {
        const std::size_t length = utf8Length(name);
        const auto byte = static_cast<unsigned char>(name.front());
        if (length == 0 || byte < 0x20 || byte == 0x7f) {
            text += {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
            name.remove_prefix(1);
            continue;
        }
        text += name.substr(0, length);
        name.remove_prefix(length);
    }
    return text;
}

} // namespace archiver
