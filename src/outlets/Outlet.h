#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <mutex>
#include <type_traits>
#include <utility>
#include <vector>

namespace outlets {

class Outlet;

/// The outlets of a controller, in the order in which they were declared. The structs that declare them share
/// one registry as their virtual base.
class Registry {
public:
    Registry() = default;
    Registry(const Registry &) = delete;
    Registry &operator=(const Registry &) = delete;

    [[nodiscard]] const QList<Outlet *> &outlets() const { return m_outlets; }

private:
    friend class Outlet;
    QList<Outlet *> m_outlets;
};

/// What a control holds, without the control. Any thread may read and write; whoever shows the outlet is told
/// of a change on the thread that made it, with no lock held, and reads the outlet again.
class Outlet {
public:
    Outlet(Registry &registry, QString name);
    virtual ~Outlet() = default;
    Outlet(const Outlet &) = delete;
    Outlet &operator=(const Outlet &) = delete;

    /// The name of the control that shows it.
    [[nodiscard]] const QString &name() const { return m_name; }

    [[nodiscard]] bool isHidden() const { return read(m_hidden); }
    void setHidden(bool hidden) { write(m_hidden, hidden); }

    /// `observer` is called after every change, for as long as the outlet lives.
    void observe(std::function<void()> observer);

protected:
    template <class T>
    [[nodiscard]] T read(const T &member) const
    {
        const std::lock_guard lock(m_mutex);
        return member;
    }

    template <class T>
    void write(T &member, std::type_identity_t<T> value)
    {
        update([&] {
            if (member == value) return false;
            member = std::move(value);
            return true;
        });
    }

    /// Runs `step` under the lock; tells the observers when it says that something changed.
    template <class Step>
    void update(Step step)
    {
        {
            const std::lock_guard lock(m_mutex);
            if (!step()) return;
        }
        notify();
    }

    void notify();

    mutable std::mutex m_mutex;

private:
    const QString m_name;
    bool m_hidden = false;
    std::vector<std::function<void()>> m_observers;
};

} // namespace outlets
