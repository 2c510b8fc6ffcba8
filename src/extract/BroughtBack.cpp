#include "extract/BroughtBack.h"

#include <QHash>
#include <algorithm>

void EntryNames::add(const QString &name) { m_names.push_back(quint64(qHash(name))); }

std::vector<quint64> EntryNames::take()
{
    std::sort(m_names.begin(), m_names.end());
    m_names.erase(std::unique(m_names.begin(), m_names.end()), m_names.end());
    return std::move(m_names);
}

bool BroughtBack::claim(EntryNames names)
{
    const std::vector<quint64> mine = names.take();
    const std::lock_guard lock(m_mutex);
    const bool isTaken = std::any_of(mine.begin(), mine.end(), [this](quint64 name) {
        return std::binary_search(m_names.begin(), m_names.end(), name);
    });
    if (isTaken) return false;
    const auto theirs = std::ptrdiff_t(m_names.size());
    m_names.insert(m_names.end(), mine.begin(), mine.end());
    std::inplace_merge(m_names.begin(), m_names.begin() + theirs, m_names.end());
    return true;
}
