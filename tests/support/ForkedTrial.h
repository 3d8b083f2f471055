#pragma once

#include <chrono>
#include <functional>
#include <optional>

/// Work in a process of its own, which may be killed in the middle.
struct Trial {
    bool finished = false;
    std::chrono::microseconds took{}; ///< from when the work was ready to begin
};

/// Forks, does the work in the child and waits for it. The child calls `ready` once it has opened its files; with
/// `killAfter` it is killed that long afterwards. Nothing that the child throws leaves it. Throws std::runtime_error
/// where the child never became ready, or did not finish though nobody killed it. The caller has no open files that
/// the child could disturb.
Trial runInChild(const std::function<void(const std::function<void()>& ready)>& work,
                 std::optional<std::chrono::microseconds> killAfter);
