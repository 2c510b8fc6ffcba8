#include "plist/Value.h"

#include <QLocale>
#include <cmath>
#include <limits>
#include <string>

namespace plist {

namespace {

qint64 truncated(double number)
{
    if (std::isnan(number)) return 0;
    if (number >= 0x1p63) return std::numeric_limits<qint64>::max();
    if (number <= -0x1p63) return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(number);
}

// Too large a number is the largest one, as in the controls that show such a text.
qint64 leadingInteger(QStringView text)
{
    text = text.trimmed();
    const bool isNegative = text.startsWith(u'-');
    if (isNegative || text.startsWith(u'+')) text = text.sliced(1);

    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    // Summed up below zero, where there is room for one more than above it.
    qint64 sum = 0;
    for (const QChar character : text) {
        if (character < u'0' || character > u'9') break;
        const int digit = character.unicode() - u'0';
        if (sum < (lowest + digit) / 10) return isNegative ? lowest : std::numeric_limits<qint64>::max();
        sum = sum * 10 - digit;
    }
    if (isNegative) return sum;
    return sum == lowest ? std::numeric_limits<qint64>::max() : -sum;
}

} // namespace

// Measured here: g++ may let u"" share the bytes of a narrow "\0" at an odd address, where Qt's own count
// crashes.
Value::Value(const char16_t *text)
    : m_content(QString::fromUtf16(text, static_cast<qsizetype>(std::char_traits<char16_t>::length(text))))
{
}

Value::Value(Array array)
{
    if (array) m_content = std::move(array);
}

Value::Value(Dictionary dictionary)
{
    if (dictionary) m_content = std::move(dictionary);
}

std::optional<QString> Value::string() const
{
    if (const auto *text = std::get_if<QString>(&m_content)) return *text;
    if (const auto *number = std::get_if<qint64>(&m_content)) return QString::number(*number);
    if (const auto *number = std::get_if<double>(&m_content))
        return QString::number(*number, 'g', QLocale::FloatingPointShortest);
    return std::nullopt;
}

std::optional<qint64> Value::integer() const
{
    if (const auto *number = std::get_if<qint64>(&m_content)) return *number;
    if (const auto *text = std::get_if<QString>(&m_content)) return leadingInteger(*text);
    if (const auto *number = std::get_if<double>(&m_content)) return truncated(*number);
    if (const auto *truth = std::get_if<bool>(&m_content)) return *truth ? 1 : 0;
    return std::nullopt;
}

Array Value::array() const
{
    const auto *array = std::get_if<Array>(&m_content);
    return array ? *array : Array{};
}

Dictionary Value::dictionary() const
{
    const auto *dictionary = std::get_if<Dictionary>(&m_content);
    return dictionary ? *dictionary : Dictionary{};
}

Value Value::deepCopy() const
{
    if (isArray()) return array().deepCopy();
    if (isDictionary()) return dictionary().deepCopy();
    return *this;
}

bool operator==(const Value &left, const Value &right) { return left.m_content == right.m_content; }

} // namespace plist
