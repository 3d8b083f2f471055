#pragma once

#include <functional>

/// Runs steps that log their errors and go on, with all that they change written to the disk at once, which takes a
/// fraction of the time. Should that writing fail, an error is logged and nothing has changed.
void inOneWrite(const std::function<void()>& steps);
