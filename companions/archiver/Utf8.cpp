#include "Utf8.h"

namespace archiver::utf8 {

namespace {

bool inRange(unsigned char byte, unsigned char low, unsigned char high)
{
    return byte >= low && byte <= high;
}

} // namespace

std::size_t sequenceLength(std::string_view text)
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

} // namespace archiver::utf8
