#pragma once

#include <mutex>

/// Of requests that run side by side, only the newest may take effect: what was asked for a former profile
/// must not show in the next. Any thread may call.
class Latest {
public:
    /// Begins a request, and so makes all that came before it void.
    [[nodiscard]] int begin()
    {
        const std::lock_guard lock(m_mutex);
        return ++m_newest;
    }

    /// Makes all void that runs.
    void drop() { static_cast<void>(begin()); }

    /// Whether no newer one has begun by now.
    [[nodiscard]] bool isNewest(int request)
    {
        const std::lock_guard lock(m_mutex);
        return request == m_newest;
    }

    /// Calls `effect` unless a newer request has begun, and lets none begin meanwhile.
    template <class Effect>
    void apply(int request, Effect effect)
    {
        const std::lock_guard lock(m_mutex);
        if (request == m_newest) effect();
    }

private:
    std::mutex m_mutex;
    int m_newest = 0;
};
