#include "ui/cColours_CS.h"

#include "core/RuntimeError.h"

#include <array>

Colour cColours_CS::MapColour(int index) const {
    /// Between two shades of Coral lies a step of its own.
    constexpr std::array<Colour, 5> between{0xFFDEE0, 0xFFA5A1, 0xFF6A5E, 0xFF4939, 0xFF2D1D};
    if (index < 0 || index >= mapColours)
        throw RuntimeError(9, "Subscript out of range: there is no map colour " + std::to_string(index));
    const int half = index / 2;
    return index % 2 == 0 ? Coral(half + 1) : between[static_cast<std::size_t>(half)];
}
