#pragma once

#include "map/form/MapTypeList.h"

#include <cstddef>
#include <string_view>
#include <vector>

/// CmbBoundary when the group tools have been closed.
struct BoundaryAfterGroups {
    std::vector<ListEntry> entries;
    std::size_t row = 0;           ///< the entry that is selected
    long boundary = 0;             ///< its code
    std::string_view boundaryType; ///< to become gsBoundaryType
};

/// `boundaryType` is gsBoundaryType. Customer groups are listed where the account has any (accountHasGroups); a map of
/// groups that are gone becomes one of TV regions.
BoundaryAfterGroups boundaryAfterGroups(bool withCustomerGroups, std::string_view boundaryType);
