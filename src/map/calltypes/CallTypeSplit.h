#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// How the calls of the whole project divide into those from lines on the map and those without a place on it: a pie.
struct CallTypeSplit {
    struct Series {
        std::string_view label;
        double value = 0;         ///< calls, or pounds
        std::uint32_t colour = 0; ///< 0xRRGGBB
    };
    std::string title;
    std::array<Series, 6> series;
    double total = 0; ///< never 0
};

/// Of a boundary (gsBoundaryType) and map type. It is always that of the main tables; customer groups and boundaries
/// that are not known show the TV regions'. Nothing where there is nothing to divide. Reads gdbSystem; throws
/// DatabaseError. Main thread.
std::optional<CallTypeSplit> callTypeSplit(std::string_view boundaryType, long mapType);
