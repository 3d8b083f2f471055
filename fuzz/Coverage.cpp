#include "fuzz/Coverage.h"

#include <array>
#include <cstdint>

namespace {

constexpr std::size_t places = 1 << 18;

std::array<std::uint8_t, places> hits{};
std::array<std::uint8_t, places> seen{}; ///< one bit for each magnitude of the count
// Plain memory: instrumented code runs before and behind all that is built and torn down.
std::array<std::uint32_t, places> touched{};
std::size_t touchedCount = 0;
std::size_t reached = 0;
std::uintptr_t previous = 0;
bool recording = false; ///< not while the program starts or ends

/// 1, 2, 3, 4 to 7, 8 to 15, 16 to 31, 32 to 127 and more times.
std::uint8_t magnitude(std::uint8_t count) {
    if (count <= 3)
        return static_cast<std::uint8_t>(1 << (count - 1));
    if (count < 8)
        return 8;
    if (count < 16)
        return 16;
    if (count < 32)
        return 32;
    return count < 128 ? 64 : 128;
}

} // namespace

extern "C" void __sanitizer_cov_trace_pc();

/// Called by instrumented code at every block.
extern "C" void __sanitizer_cov_trace_pc() {
    if (!recording)
        return;
    const auto here = reinterpret_cast<std::uintptr_t>(__builtin_return_address(0));
    const std::size_t place = ((here >> 1) ^ (previous >> 2) ^ (here << 7)) % places;
    previous = here;
    if (hits[place] == 0)
        touched[touchedCount++] = static_cast<std::uint32_t>(place);
    if (hits[place] < 255)
        ++hits[place];
}

namespace coverage {

void begin() {
    recording = false;
    for (std::size_t i = 0; i < touchedCount; ++i)
        hits[touched[i]] = 0;
    touchedCount = 0;
    previous = 0;
    recording = true;
}

std::size_t takeNew() {
    recording = false;
    std::size_t fresh = 0;
    for (std::size_t i = 0; i < touchedCount; ++i) {
        const std::uint32_t place = touched[i];
        const std::uint8_t bit = magnitude(hits[place]);
        if (seen[place] & bit)
            continue;
        reached += seen[place] == 0;
        seen[place] = static_cast<std::uint8_t>(seen[place] | bit);
        ++fresh;
    }
    return fresh;
}

std::size_t total() {
    return reached;
}

} // namespace coverage
