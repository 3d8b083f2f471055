#pragma once

#include <string_view>
#include <vector>

/// The entries of cmbMapType and CmbBoundary, and what may be chosen on a boundary. Plain data: the window keeps its
/// lists in step.

struct ListEntry {
    long code = 0; ///< map type or boundary code
    std::string_view text;
    friend bool operator==(const ListEntry&, const ListEntry&) = default;
};

/// As the window first shows them.
std::vector<ListEntry> mapTypeEntries();
/// Customer groups are listed where the account has some.
std::vector<ListEntry> boundaryEntries(bool withCustomerGroups);

/// What the choice of a boundary and a map type allows.
struct MapTypeChoice {
    std::vector<ListEntry> mapTypes;
    long mapType = 0;              ///< chosen
    bool revertedToTotals = false; ///< averages were chosen and do not exist here: the user is told
    bool densitiesEnabled = false; ///< else chkDensities is cleared
};

inline constexpr std::string_view averagesNotHere =
    "Average Calls Per Caller Report only applicable to TV Regions and Postcode Districts. Reverting to Total Calls";

/// Calls for each caller are known of TV regions and postcode districts alone, and population rates of these where
/// there are population figures; averages have no rates. `entries` are listed now; the averages come last when they
/// come back.
MapTypeChoice mapTypesOf(std::string_view boundaryType, std::vector<ListEntry> entries, long mapType);
