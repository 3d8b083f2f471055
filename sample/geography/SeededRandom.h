#pragma once

#include <cstdint>

namespace sample {

/// Scrambles 64 bits (the step and finaliser of SplitMix64): a random function of its argument.
constexpr std::uint64_t mixBits(std::uint64_t z) {
    z += 0x9e3779b97f4a7c15u;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
    return z ^ (z >> 31);
}

/// A random function of several values, in their order.
template<typename... Values>
constexpr std::uint64_t mixAll(std::uint64_t first, Values... rest) {
    std::uint64_t h = mixBits(first);
    ((h = mixBits(h ^ static_cast<std::uint64_t>(rest))), ...);
    return h;
}

/// The upper bits as a number in [0, 1).
constexpr double toUnit(std::uint64_t bits) {
    return static_cast<double>(bits >> 11) * 0x1p-53;
}

/// SplitMix64. The standard library's distributions differ between its makers; these do not, so that a seed means the
/// same sample everywhere.
class SeededRandom {
public:
    explicit SeededRandom(std::uint64_t seed) : state_(seed) {}

    std::uint64_t bits() {
        const std::uint64_t result = mixBits(state_);
        state_ += 0x9e3779b97f4a7c15u;
        return result;
    }

    double unit() { return toUnit(bits()); }
    double between(double low, double high) { return low + (high - low) * unit(); }

    /// 0 .. count - 1; the bias of the remainder is below 2^-32 for the counts in use.
    std::uint64_t below(std::uint64_t count) { return bits() % count; }

private:
    std::uint64_t state_;
};

/// Smooth noise over the plane, in [0, 1), with bumps of about `size` map units.
double planeNoise(std::uint64_t seed, double x, double y, double size);

} // namespace sample
