#pragma once

#include "plist/Array.h"
#include "plist/Dictionary.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <optional>
#include <variant>

namespace plist {

/// One value of a property list: none, a scalar, or a handle to a container. Scalars convert as the reader
/// needs; containers never convert.
class Value {
public:
    Value() = default; ///< none
    Value(QString text) : m_content(std::move(text)) {}
    Value(const char16_t *text);
    Value(int number) : m_content(qint64{number}) {}
    Value(qint64 number) : m_content(number) {}
    Value(double number) : m_content(number) {}
    Value(bool truth) : m_content(truth) {}
    Value(QByteArray data) : m_content(std::move(data)) {}
    Value(QDateTime date) : m_content(std::move(date)) {}
    Value(Array array);           ///< a null handle gives none
    Value(Dictionary dictionary); ///< a null handle gives none

    [[nodiscard]] bool isNone() const { return std::holds_alternative<std::monostate>(m_content); }
    [[nodiscard]] bool isString() const { return std::holds_alternative<QString>(m_content); }
    [[nodiscard]] bool isArray() const { return std::holds_alternative<Array>(m_content); }
    [[nodiscard]] bool isDictionary() const { return std::holds_alternative<Dictionary>(m_content); }

    /// The text of a string or number; none for anything else.
    [[nodiscard]] std::optional<QString> string() const;

    /// The integer of a number or boolean, or that a string begins with (0 where it begins with none, as a
    /// control reads it); none for containers, data and dates.
    [[nodiscard]] std::optional<qint64> integer() const;

    /// The same container, or a null handle where the value is something else.
    [[nodiscard]] Array array() const;
    [[nodiscard]] Dictionary dictionary() const;

    /// A value that shares no container with this one, at any depth.
    [[nodiscard]] Value deepCopy() const;

    /// Equality by content: of containers at any depth, of dictionaries whatever their keys' order.
    friend bool operator==(const Value &left, const Value &right);

    using Content =
        std::variant<std::monostate, QString, qint64, double, bool, QByteArray, QDateTime, Array, Dictionary>;
    /// For those who must tell the kinds apart: the writer of files.
    [[nodiscard]] const Content &content() const { return m_content; }

private:
    Content m_content;
};

struct Dictionary::Entry {
    QString key;
    Value value;
};

} // namespace plist
