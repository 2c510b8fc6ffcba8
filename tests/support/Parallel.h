#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <functional>
#include <thread>
#include <vector>

/// Runs `work` in four threads until all are done, for rows that mostly wait for programs. Each call takes
/// the rows that `next` gives, until that is `count` or more.
inline void inParallel(std::size_t count,
                       const std::function<void(const std::function<std::size_t()> &next)> &work)
{
    std::atomic<std::size_t> row = 0;
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < std::min<std::size_t>(4, count); ++i)
        threads.emplace_back([&] { work([&] { return row++; }); });
    for (std::thread &thread : threads)
        thread.join();
}

/// The same for rows that share nothing.
template <class Rows, class Work>
void forEachInParallel(const Rows &rows, Work work)
{
    inParallel(rows.size(), [&](const std::function<std::size_t()> &next) {
        for (std::size_t row = next(); row < rows.size(); row = next())
            work(rows[row]);
    });
}
