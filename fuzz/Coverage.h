#pragma once

#include <cstddef>

/// What the input at hand reached of the code, where the libraries are built with -fsanitize-coverage=trace-pc (the
/// option CALLSCOPE_FUZZ_COVERAGE). Elsewhere nothing is ever new. One thread.
namespace coverage {

/// Forgets the places of the input before.
void begin();
/// How many places, or counts of the same place, no input reached before.
std::size_t takeNew();
/// All places reached so far.
std::size_t total();

} // namespace coverage
