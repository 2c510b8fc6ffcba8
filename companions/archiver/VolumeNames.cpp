#include "VolumeNames.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace archiver {

namespace {

constexpr std::size_t extensionLength = 4; // ".rar"
constexpr std::size_t mostDigits = 9;

bool isDigit(char character) { return character >= '0' && character <= '9'; }

bool endsWith(std::string_view text, std::string_view lowerCaseEnd)
{
    if (text.size() < lowerCaseEnd.size()) return false;
    return std::ranges::equal(
        text.substr(text.size() - lowerCaseEnd.size()), lowerCaseEnd,
        [](char left, char right) { return std::tolower(static_cast<unsigned char>(left)) == right; });
}

} // namespace

std::optional<VolumeName> parseVolumeName(std::string_view path)
{
    if (!endsWith(path, ".rar")) return std::nullopt;
    VolumeName name;
    name.extension = path.substr(path.size() - extensionLength);
    std::string_view rest = path.substr(0, path.size() - extensionLength);
    while (name.digits < rest.size() && isDigit(rest[rest.size() - 1 - name.digits]))
        ++name.digits;
    if (name.digits == 0 || name.digits > mostDigits) return std::nullopt;
    const std::string_view digits = rest.substr(rest.size() - name.digits);
    std::from_chars(digits.data(), digits.data() + digits.size(), name.number);
    rest.remove_suffix(name.digits);
    constexpr std::string_view part = ".part";
    if (!endsWith(rest, part)) return std::nullopt;
    name.base = rest.substr(0, rest.size() - part.size());
    return name;
}

std::string volumePath(std::string_view base, std::uint64_t number, std::size_t digits,
                       std::string_view extension)
{
    std::string text = std::to_string(number);
    if (text.size() < digits) text.insert(0, digits - text.size(), '0');
    return std::string(base) + ".part" + text + std::string(extension);
}

std::string nextVolumePath(std::string_view path)
{
    if (const std::optional<VolumeName> name = parseVolumeName(path)) {
        // The case of ".part" is kept by cutting it out of the path itself.
        const std::string_view start = path.substr(0, path.size() - extensionLength - name->digits);
        std::string number = std::to_string(name->number + 1);
        if (number.size() < name->digits) number.insert(0, name->digits - number.size(), '0');
        return std::string(start) + number + name->extension;
    }
    std::string next(path);
    if (next.size() < extensionLength || next[next.size() - extensionLength] != '.') return next + ".r00";
    char &letter = next[next.size() - 3];
    char &tens = next[next.size() - 2];
    char &ones = next[next.size() - 1];
    if (!isDigit(tens) || !isDigit(ones)) {
        tens = '0';
        ones = '0';
        return next;
    }
    if (ones++ != '9') return next;
    ones = '0';
    if (tens++ != '9') return next;
    tens = '0';
    ++letter;
    return next;
}

std::string withoutExtension(std::string_view path)
{
    if (endsWith(path, ".rar")) path.remove_suffix(extensionLength);
    return std::string(path);
}

} // namespace archiver
