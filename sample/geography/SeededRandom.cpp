#include "sample/geography/SeededRandom.h"

#include <cmath>

namespace sample {

namespace {

double smooth(double t) {
    return t * t * (3 - 2 * t);
}

double lerp(double a, double b, double t) {
    return a + (b - a) * t;
}

} // namespace

double planeNoise(std::uint64_t seed, double x, double y, double size) {
    const double column = std::floor(x / size);
    const double row = std::floor(y / size);
    const auto i = static_cast<std::int64_t>(column);
    const auto j = static_cast<std::int64_t>(row);
    const auto lattice = [seed](std::int64_t u, std::int64_t v) { return toUnit(mixAll(seed, u, v)); };
    const double tx = smooth(x / size - column);
    const double ty = smooth(y / size - row);
    return lerp(lerp(lattice(i, j), lattice(i + 1, j), tx), lerp(lattice(i, j + 1), lattice(i + 1, j + 1), tx), ty);
}

} // namespace sample
