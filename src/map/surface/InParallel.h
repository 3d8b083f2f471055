#pragma once

#include <cstddef>
#include <functional>

/// Calls work(0) to work(pieces - 1), which share nothing they change, on this thread and a second one, and returns
/// when all are done. Each thread takes the next piece when it is free, so that a second thread that comes late or
/// never costs nothing. The first exception of a piece is thrown on.
void inParallel(std::size_t pieces, std::function<void(std::size_t)> work);
