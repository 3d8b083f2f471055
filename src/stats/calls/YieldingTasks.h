#pragma once

#include <functional>
#include <vector>

/// Called at least every 100 ms on the thread that waits for work; false asks to stop.
using CallProgress = std::function<bool()>;

/// Runs the tasks on two threads beside the calling one, in their order, and calls `progress` meanwhile. A stop lets
/// the tasks in hand end and begins no other. Gives false where it was stopped; throws the first exception of a task.
bool runYielding(const std::vector<std::function<void()>>& tasks, const CallProgress& progress);
