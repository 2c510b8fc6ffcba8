#pragma once

#include <mutex>
#include <utility>

/// A value that one thread may set while others read it.
template <class T>
class Guarded {
public:
    Guarded() = default;
    explicit Guarded(T value) : m_value(std::move(value)) {}

    [[nodiscard]] T operator()() const
    {
        const std::lock_guard lock(m_mutex);
        return m_value;
    }

    void set(T value)
    {
        const std::lock_guard lock(m_mutex);
        m_value = std::move(value);
    }

private:
    mutable std::mutex m_mutex;
    T m_value{};
};
