#include "stats/calls/YieldingTasks.h"

#include <array>
#include <atomic>
#include <chrono>
#include <future>

bool runYielding(const std::vector<std::function<void()>>& tasks, const CallProgress& progress) {
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> stopped = false;
    const auto work = [&] {
        for (std::size_t i = next++; i < tasks.size() && !stopped; i = next++)
            tasks[i]();
    };
    std::array<std::future<void>, 2> workers{std::async(std::launch::async, work),
                                             std::async(std::launch::async, work)};
    try {
        for (auto& worker : workers) {
            while (worker.wait_for(std::chrono::milliseconds(40)) != std::future_status::ready)
                stopped = stopped || !progress();
        }
        for (auto& worker : workers)
            worker.get();
    } catch (...) {
        stopped = true; // the futures wait for what is in hand
        throw;
    }
    return !stopped;
}
