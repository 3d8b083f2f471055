#pragma once

#include <future>
#include <system_error>

/// Runs two pieces of work that share nothing they change, one of them on a second thread, and waits for both. Where
/// there is no second thread to be had, one after the other.
template<typename First, typename Second>
void inParallel(First first, Second second) {
    std::future<void> beside;
    try {
        beside = std::async(std::launch::async, second);
    } catch (const std::system_error&) {
        second();
    }
    first();
    if (beside.valid())
        beside.get();
}
