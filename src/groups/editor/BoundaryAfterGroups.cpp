#include "groups/editor/BoundaryAfterGroups.h"

#include "map/Boundaries.h"

#include <algorithm>

namespace {

constexpr std::string_view ofGroups = "CustomerGroups", ofTvRegions = "TVRegion";

} // namespace

BoundaryAfterGroups boundaryAfterGroups(bool withCustomerGroups, std::string_view boundaryType) {
    const std::string_view wanted = boundaryType == ofGroups && !withCustomerGroups ? ofTvRegions : boundaryType;
    const auto all = boundaries();
    const auto known = std::ranges::find(all, wanted, &Boundary::boundaryType);
    const Boundary& boundary =
        known == all.end() ? *std::ranges::find(all, ofTvRegions, &Boundary::boundaryType) : *known;
    BoundaryAfterGroups after;
    after.entries = boundaryEntries(withCustomerGroups);
    after.boundary = boundary.code;
    after.boundaryType = boundary.boundaryType;
    const auto entry = std::ranges::find(after.entries, boundary.code, &ListEntry::code);
    after.row = static_cast<std::size_t>(entry - after.entries.begin());
    return after;
}
