#include "tools/Threads.h"

#include <QLoggingCategory>
#include <condition_variable>
#include <mutex>
#include <pthread.h>
#include <thread>

namespace {

Q_LOGGING_CATEGORY(logThreads, "quillorent.threads")

class ThreadCount {
public:
    void began()
    {
        const std::lock_guard lock(m_mutex);
        ++m_running;
    }
    void ended()
    {
        const std::lock_guard lock(m_mutex);
        --m_running;
        m_changed.notify_all();
    }
    bool waitForNone(std::chrono::milliseconds atMost)
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, atMost, [this] { return m_running == 0; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_running = 0;
};

// Never destroyed: a thread may outlive the end of main() by a moment.
ThreadCount &threadCount()
{
    static auto *count = new ThreadCount;
    return *count;
}

void runBody(const QString &name, const std::function<void()> &body)
{
    try {
        body();
    } catch (const std::exception &error) {
        qCCritical(logThreads, "%s: %s", qUtf8Printable(name), error.what());
    } catch (...) {
        qCCritical(logThreads, "%s: an exception of an unknown kind", qUtf8Printable(name));
    }
}

} // namespace

void detachThread(const QString &name, std::function<void()> body)
{
    threadCount().began();
    std::thread([name, body = std::move(body)]() mutable {
        pthread_setname_np(pthread_self(), name.toUtf8().left(15).constData());
        runBody(name, body);
        body = nullptr; // what it holds goes before the thread counts as ended
        threadCount().ended();
    }).detach();
}

bool waitForThreads(std::chrono::milliseconds atMost) { return threadCount().waitForNone(atMost); }
