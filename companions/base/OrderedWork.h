#pragma once

#include <condition_variable>
#include <csignal>
#include <cstddef>
#include <functional>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace base {

/// Jobs done on several threads, whose results come in the order in which the jobs were given. One thread
/// gives and takes; it alone touches a job before give() and after take(). The jobs are made once and used
/// again and again, so that their buffers bound the memory.
template <typename Job>
class OrderedWork {
public:
    /// `work` is called for one job at a time on each of `threads` threads and must not throw; at most
    /// `depth` jobs are under way. Without a thread, also where the system gives none, the work is done in
    /// take().
    OrderedWork(unsigned threads, std::size_t depth, std::function<void(Job &)> work)
        : m_work(std::move(work)), m_jobs(depth), m_done(depth)
    {
        // Signals are the business of the thread that was there first.
        sigset_t all;
        sigset_t former;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &former);
        try {
            m_threads.reserve(threads);
            for (unsigned i = 0; i < threads; ++i)
                m_threads.emplace_back([this] { run(); });
        } catch (const std::system_error &) {
            // Fewer do as well.
        }
        pthread_sigmask(SIG_SETMASK, &former, nullptr);
    }

    /// Jobs that nobody has begun are dropped.
    ~OrderedWork()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_isOver = true;
        }
        m_given.notify_all();
        for (std::thread &each : m_threads)
            each.join();
    }
    OrderedWork(const OrderedWork &) = delete;
    OrderedWork &operator=(const OrderedWork &) = delete;

    /// A job to fill; null when all are under way: take one first.
    [[nodiscard]] Job *free() { return m_last - m_first < m_jobs.size() ? &at(m_last) : nullptr; }

    /// Hands on the job that free() gave.
    void give()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_done[m_last % m_done.size()] = false;
            ++m_last;
        }
        m_given.notify_one();
    }

    /// Waits for the oldest job; null when none is under way. It is the caller's until release().
    [[nodiscard]] Job *take()
    {
        if (m_first == m_last) return nullptr;
        if (m_threads.empty()) {
            if (m_begun == m_first) m_work(at(m_begun++));
            return &at(m_first);
        }
        std::unique_lock lock(m_mutex);
        m_finished.wait(lock, [this] { return m_done[m_first % m_done.size()]; });
        return &at(m_first);
    }

    /// Lets the job be used again that take() gave.
    void release() { ++m_first; }

private:
    [[nodiscard]] Job &at(std::size_t number) { return m_jobs[number % m_jobs.size()]; }

    void run()
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_given.wait(lock, [this] { return m_isOver || m_begun < m_last; });
            if (m_isOver) return;
            const std::size_t number = m_begun++;
            lock.unlock();
            m_work(at(number));
            lock.lock();
            m_done[number % m_done.size()] = true;
            m_finished.notify_one();
        }
    }

    std::function<void(Job &)> m_work;
    std::vector<Job> m_jobs;
    std::vector<bool> m_done;
    // Numbers of jobs: the oldest that wasn't released, the next to be begun, the next to be given.
    std::size_t m_first = 0; ///< of the giving thread alone
    std::size_t m_begun = 0;
    std::size_t m_last = 0;
    bool m_isOver = false;
    std::mutex m_mutex;
    std::condition_variable m_given;
    std::condition_variable m_finished;
    std::vector<std::thread> m_threads;
};

} // namespace base
