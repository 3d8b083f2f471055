#pragma once

#include <span>
#include <string_view>

/// One kind of area by which the country can be mapped, and where its shapes, labels and figures lie.
struct Boundary {
    long code = 0;
    std::string_view text;         ///< as CmbBoundary lists it
    std::string_view boundaryType; ///< gsBoundaryType
    std::string_view coverage;     ///< of its polygons
    std::string_view shapeTable;
    std::string_view nameColumn;   ///< of the shape table
    std::string_view keyColumn;    ///< of the statistics tables
    std::string_view defaultTable; ///< statistics of the whole project
    std::string_view labelCoverage;
    std::string_view labelSource;
    bool showsMinimum = false; ///< the status panel has a "Min =" row
};

/// All boundaries, in the order of their codes (0, 1, 2, 3, 5).
std::span<const Boundary> boundaries();
/// Null for a code that no boundary has.
const Boundary* findBoundary(long code);
