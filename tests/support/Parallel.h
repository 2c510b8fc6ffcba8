#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <gtest/gtest.h>
#include <memory>
#include <thread>
#include <vector>

/// Does the rows 0 to `count` - 1 in six threads: rows that mostly wait for programs. Each thread makes a
/// state of its own and hands it to `work` with the row; where `make` gives none it does nothing. What a row
/// throws is a failure of that row.
template <class Make, class Work>
void inParallel(std::size_t count, Make make, Work work)
{
    const auto guarded = [](auto &&what) {
        try {
            what();
        } catch (const std::exception &exception) {
            ADD_FAILURE() << exception.what();
        }
    };
    std::atomic<std::size_t> next = 0;
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < std::min<std::size_t>(6, count); ++i)
        threads.emplace_back([&] {
            guarded([&] {
                const auto state = make();
                for (std::size_t row = next++; state && row < count; row = next++)
                    guarded([&] { work(*state, row); });
            });
        });
    for (std::thread &thread : threads)
        thread.join();
}
