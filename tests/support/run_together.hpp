#ifndef OVI18N_TESTS_SUPPORT_RUN_TOGETHER_HPP
#define OVI18N_TESTS_SUPPORT_RUN_TOGETHER_HPP

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

// Runs body(i) on count threads released at once, so that their first calls really overlap, and
// joins them all.
inline void run_together(int count, std::function<void(int)> const& body) {
    std::atomic<int> waiting{count};
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i) {
        threads.emplace_back([&waiting, &body, i] {
            waiting.fetch_sub(1);
            while (waiting.load() > 0) {
                std::this_thread::yield();
            }
            body(i);
        });
    }
    for (std::thread& t : threads) {
        t.join();
    }
}

#endif
