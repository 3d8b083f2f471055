#pragma once

#include <string>
#include <vector>

/// What a combo box of the main window offers.
struct ChoiceList {
    std::vector<std::string> rows;
    std::string remembered; ///< the choice that comes first when its option is picked; empty: the first row
    bool available = false; ///< its option can be picked
};

/// The first row of every list of groups: what has been put into no group.
inline constexpr const char* notAllocatedRow = "Not Allocated";
