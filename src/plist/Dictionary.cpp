#include "plist/Dictionary.h"

#include "plist/Value.h"

#include <QHash>
#include <mutex>
#include <vector>

namespace plist {

// As in an array, nothing is done to a value while the lock is held but to copy or drop its handle, and no
// snapshot shares memory with what may be changed.
struct Dictionary::Shared {
    mutable std::mutex mutex;
    std::vector<QString> keys; // in the order in which they came
    QHash<QString, Value> values;
};

Dictionary Dictionary::make()
{
    Dictionary dictionary;
    dictionary.m_shared = std::make_shared<Shared>();
    return dictionary;
}

qsizetype Dictionary::count() const
{
    if (!m_shared) return 0;
    const std::lock_guard lock(m_shared->mutex);
    return static_cast<qsizetype>(m_shared->keys.size());
}

QStringList Dictionary::keys() const
{
    if (!m_shared) return {};
    const std::lock_guard lock(m_shared->mutex);
    return {m_shared->keys.begin(), m_shared->keys.end()};
}

QList<Dictionary::Entry> Dictionary::entries() const
{
    if (!m_shared) return {};
    QList<Entry> entries;
    const std::lock_guard lock(m_shared->mutex);
    entries.reserve(static_cast<qsizetype>(m_shared->keys.size()));
    for (const QString &key : m_shared->keys)
        entries.append({key, m_shared->values.value(key)});
    return entries;
}

bool Dictionary::contains(const QString &key) const
{
    if (!m_shared) return false;
    const std::lock_guard lock(m_shared->mutex);
    return m_shared->values.contains(key);
}

Value Dictionary::value(const QString &key) const
{
    if (!m_shared) return {};
    const std::lock_guard lock(m_shared->mutex);
    return m_shared->values.value(key);
}

std::optional<QString> Dictionary::string(const QString &key) const { return value(key).string(); }

std::optional<qint64> Dictionary::integer(const QString &key) const { return value(key).integer(); }

Array Dictionary::array(const QString &key) const { return value(key).array(); }

Dictionary Dictionary::dictionary(const QString &key) const { return value(key).dictionary(); }

bool Dictionary::isOn(const QString &key) const { return string(key) == u"1"; }

void Dictionary::setValue(const QString &key, const Value &value) const
{
    if (value.isNone()) return remove(key);
    if (!m_shared) return;
    const std::lock_guard lock(m_shared->mutex);
    if (!m_shared->values.contains(key)) m_shared->keys.push_back(key);
    m_shared->values.insert(key, value);
}

void Dictionary::setSwitch(const QString &key, bool on) const { setValue(key, on ? u"1" : u"0"); }

void Dictionary::remove(const QString &key) const
{
    if (!m_shared) return;
    const std::lock_guard lock(m_shared->mutex);
    if (m_shared->values.remove(key)) std::erase(m_shared->keys, key);
}

Dictionary Dictionary::deepCopy() const
{
    if (!m_shared) return {};
    const Dictionary copy = make();
    const QList<Entry> snapshot = entries();
    for (const Entry &entry : snapshot)
        copy.setValue(entry.key, entry.value.deepCopy());
    return copy;
}

bool operator==(const Dictionary &left, const Dictionary &right)
{
    if (left.isSameObject(right)) return true;
    if (!left || !right) return false;
    const QList<Dictionary::Entry> snapshot = left.entries();
    // One look at the other side as well: between two of them, another thread might change it.
    QHash<QString, Value> others;
    const QList<Dictionary::Entry> otherSnapshot = right.entries();
    for (const Dictionary::Entry &entry : otherSnapshot)
        others.insert(entry.key, entry.value);
    if (snapshot.size() != others.size()) return false;
    for (const Dictionary::Entry &entry : snapshot)
        if (!(others.value(entry.key) == entry.value)) return false;
    return true;
}

} // namespace plist
