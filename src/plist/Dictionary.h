#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

namespace plist {

class Array;
class Value;

/// A handle to a shared dictionary that keeps the order in which its keys came. Copies of a handle are the
/// same dictionary. A default-made handle is none: it finds nothing and takes nothing. Any thread may call.
class Dictionary {
public:
    Dictionary() = default;                 ///< none
    [[nodiscard]] static Dictionary make(); ///< new and empty

    explicit operator bool() const { return m_shared != nullptr; }
    [[nodiscard]] bool isSameObject(const Dictionary &other) const { return m_shared == other.m_shared; }

    [[nodiscard]] qsizetype count() const;
    [[nodiscard]] QStringList keys() const;
    struct Entry;
    [[nodiscard]] QList<Entry> entries() const; ///< a snapshot, in the keys' order
    [[nodiscard]] bool contains(const QString &key) const;

    /// What lies under the key; none where nothing does.
    [[nodiscard]] Value value(const QString &key) const;
    [[nodiscard]] std::optional<QString> string(const QString &key) const;
    [[nodiscard]] std::optional<qint64> integer(const QString &key) const;
    [[nodiscard]] Array array(const QString &key) const;
    [[nodiscard]] Dictionary dictionary(const QString &key) const;

    /// Whether the switch under the key is on: its text is "1".
    [[nodiscard]] bool isOn(const QString &key) const;

    /// A key that was there keeps its place. Setting none removes the key.
    void setValue(const QString &key, const Value &value) const;
    void setSwitch(const QString &key, bool on) const; ///< "1" or "0"
    void remove(const QString &key) const;

    /// New containers at every depth.
    [[nodiscard]] Dictionary deepCopy() const;

    friend bool operator==(const Dictionary &left, const Dictionary &right);

private:
    struct Shared;
    std::shared_ptr<Shared> m_shared;
};

} // namespace plist
