#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>

namespace plist {

class Value;

/// A handle to a shared list. Copies of a handle are the same list; a default-made handle is none: it is
/// empty and takes nothing. Any thread may call.
class Array {
public:
    Array() = default;                 ///< none
    [[nodiscard]] static Array make(); ///< new and empty
    [[nodiscard]] static Array make(const QStringList &texts);

    explicit operator bool() const { return m_shared != nullptr; }
    [[nodiscard]] bool isSameObject(const Array &other) const { return m_shared == other.m_shared; }

    [[nodiscard]] qsizetype count() const;
    [[nodiscard]] Value at(qsizetype index) const; ///< none where the index is out of range
    [[nodiscard]] QList<Value> values() const;     ///< a snapshot
    [[nodiscard]] QStringList strings() const;     ///< the texts of its scalars, "" for what has none
    [[nodiscard]] bool contains(const Value &value) const;

    void append(const Value &value) const;
    void append(const QStringList &texts) const;    ///< in one step: no other thread sees half of them
    void removeAt(const QList<int> &indexes) const; ///< all at once; indexes out of range are ignored
    void clear() const;

    [[nodiscard]] Array deepCopy() const;

    friend bool operator==(const Array &left, const Array &right);

private:
    struct Shared;
    std::shared_ptr<Shared> m_shared;
};

} // namespace plist
