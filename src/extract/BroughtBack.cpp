#include "extract/BroughtBack.h"

#include <algorithm>

bool BroughtBack::claim(const QStringList &names)
{
    const std::lock_guard lock(m_mutex);
    const auto isTaken = [this](const QString &name) { return m_names.contains(name); };
    if (std::any_of(names.begin(), names.end(), isTaken)) return false;
    for (const QString &name : names)
        m_names.insert(name);
    return true;
}
