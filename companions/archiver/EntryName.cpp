#include "EntryName.h"

#include <algorithm>

namespace archiver {

namespace {

bool inRange(unsigned char byte, unsigned char low, unsigned char high)
{
    return byte >= low && byte <= high;
}

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

std::string nameIn(const std::string &path) { return path.substr(path.rfind('/') + 1); }

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
    if (text.empty()) return 0;
    const auto at = [text](std::size_t index) {
        return index < text.size() ? static_cast<unsigned char>(text[index]) : static_cast<unsigned char>(0);
    };
    const auto continues = [at](std::size_t index) { return inRange(at(index), 0x80, 0xBF); };
    const unsigned char first = at(0);
    if (first < 0x80) return 1;
    if (inRange(first, 0xC2, 0xDF)) return continues(1) ? 2 : 0;
    if (inRange(first, 0xE0, 0xEF)) {
        const unsigned char low = first == 0xE0 ? 0xA0 : 0x80;
        const unsigned char high = first == 0xED ? 0x9F : 0xBF; // no surrogates
        return inRange(at(1), low, high) && continues(2) ? 3 : 0;
    }
    if (inRange(first, 0xF0, 0xF4)) {
        const unsigned char low = first == 0xF0 ? 0x90 : 0x80;
        const unsigned char high = first == 0xF4 ? 0x8F : 0xBF;
        return inRange(at(1), low, high) && continues(2) && continues(3) ? 4 : 0;
    }
    return 0;
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

} // namespace archiver
