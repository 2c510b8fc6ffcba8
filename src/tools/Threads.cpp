#include "tools/Threads.h"

#include <QLoggingCategory>
#include <condition_variable>
#include <list>
#include <mutex>
#include <pthread.h>
#include <thread>

namespace {

Q_LOGGING_CATEGORY(logThreads, "quillorent.threads")

/// The threads that run, and those that have ended and are to be joined yet.
class Threads {
public:
    void start(const QString &name, std::function<void()> body)
    {
        const std::lock_guard lock(m_mutex);
        joinEnded();
        const auto place = m_running.emplace(m_running.end());
        *place = std::thread([this, place, name, body = std::move(body)]() mutable {
            pthread_setname_np(pthread_self(), name.toUtf8().left(15).constData());
            runBody(name, body);
            body = nullptr; // what it holds goes before the thread counts as ended
            end(place);
        });
    }

    bool waitForNone(std::chrono::milliseconds atMost)
    {
        std::unique_lock lock(m_mutex);
        const bool isNone = m_changed.wait_for(lock, atMost, [this] { return m_running.empty(); });
        joinEnded();
        return isNone;
    }

private:
    using Place = std::list<std::thread>::iterator;

    static void runBody(const QString &name, const std::function<void()> &body)
    {
        try {
            body();
        } catch (const std::exception &error) {
            qCCritical(logThreads, "%s: %s", qUtf8Printable(name), error.what());
        } catch (...) {
            qCCritical(logThreads, "%s: an exception of an unknown kind", qUtf8Printable(name));
        }
    }

    void end(Place place)
    {
        const std::lock_guard lock(m_mutex);
        m_ended.splice(m_ended.end(), m_running, place);
        m_changed.notify_all();
    }

    // With the lock held: those in question have nothing left to do but to return.
    void joinEnded()
    {
        for (std::thread &thread : m_ended)
            thread.join();
        m_ended.clear();
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::list<std::thread> m_running;
    std::list<std::thread> m_ended;
};

// Never destroyed: a program that ends without waiting leaves its threads to the system.
Threads &threads()
{
    static auto *all = new Threads;
    return *all;
}

} // namespace

void detachThread(const QString &name, std::function<void()> body) { threads().start(name, std::move(body)); }

bool waitForThreads(std::chrono::milliseconds atMost) { return threads().waitForNone(atMost); }
