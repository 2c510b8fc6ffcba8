#include "plist/Array.h"

#include "plist/Value.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <mutex>
#include <vector>

namespace plist {

// Whoever needs several values takes a snapshot and works on that with the lock released: comparing or
// copying a value locks the containers in it, and two held locks could be taken in two orders. The values lie
// in a vector because a snapshot of a QList would share its memory, and a QList that is no longer shared is
// changed in place without waiting for what another thread has read from it.
struct Array::Shared {
    mutable std::mutex mutex;
    std::vector<Value> values;
};

Array Array::make()
{
    Array array;
    array.m_shared = std::make_shared<Shared>();
    return array;
}

Array Array::make(const QStringList &texts)
{
    const Array array = make();
    array.append(texts);
    return array;
}

qsizetype Array::count() const
{
    if (!m_shared) return 0;
    const std::lock_guard lock(m_shared->mutex);
    return static_cast<qsizetype>(m_shared->values.size());
}

Value Array::at(qsizetype index) const
{
    if (!m_shared || index < 0) return {};
    const std::lock_guard lock(m_shared->mutex);
    const auto position = static_cast<std::size_t>(index);
    return position < m_shared->values.size() ? m_shared->values[position] : Value{};
}

QList<Value> Array::values() const
{
    if (!m_shared) return {};
    const std::lock_guard lock(m_shared->mutex);
    return {m_shared->values.begin(), m_shared->values.end()};
}

QStringList Array::strings() const
{
    QStringList texts;
    const QList<Value> snapshot = values();
    for (const Value &value : snapshot)
        texts.append(value.string().value_or(QString{}));
    return texts;
}

bool Array::contains(const Value &value) const
{
    const QList<Value> snapshot = values();
    return std::find(snapshot.begin(), snapshot.end(), value) != snapshot.end();
}

void Array::append(const Value &value) const
{
    if (!m_shared || value.isNone()) return;
    const std::lock_guard lock(m_shared->mutex);
    m_shared->values.push_back(value);
}

void Array::append(const QStringList &texts) const
{
    if (!m_shared) return;
    const std::lock_guard lock(m_shared->mutex);
    m_shared->values.insert(m_shared->values.end(), texts.begin(), texts.end());
}

void Array::removeAt(const QList<int> &indexes) const
{
    if (!m_shared) return;
    // From the end, so that no removal moves what is still to be removed.
    QList<int> descending = indexes;
    std::sort(descending.begin(), descending.end(), std::greater<>{});
    descending.erase(std::unique(descending.begin(), descending.end()), descending.end());

    const std::lock_guard lock(m_shared->mutex);
    for (const int index : std::as_const(descending))
        if (index >= 0 && index < std::ssize(m_shared->values))
            m_shared->values.erase(m_shared->values.begin() + index);
}

void Array::clear() const
{
    if (!m_shared) return;
    const std::lock_guard lock(m_shared->mutex);
    m_shared->values.clear();
}

Array Array::deepCopy() const
{
    if (!m_shared) return {};
    const Array copy = make();
    const QList<Value> snapshot = values();
    for (const Value &value : snapshot)
        copy.append(value.deepCopy());
    return copy;
}

bool operator==(const Array &left, const Array &right)
{
    if (left.isSameObject(right)) return true;
    return left && right && left.values() == right.values();
}

} // namespace plist
