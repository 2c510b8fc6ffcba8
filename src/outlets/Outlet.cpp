#include "outlets/Outlet.h"

namespace outlets {

Outlet::Outlet(Registry &registry, QString name) : m_name(std::move(name))
{
    registry.m_outlets.append(this);
}

void Outlet::observe(std::function<void()> observer)
{
    const std::lock_guard lock(m_mutex);
    m_observers.push_back(std::move(observer));
}

void Outlet::notify()
{
    // Observers may read the outlet, so they are called without the lock.
    for (const auto &observer : read(m_observers))
        observer();
}

} // namespace outlets
