#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The bars beside the map, for calls without a place on it, in the colours of its key.
struct CallTypeBar {
    std::string_view name;           ///< "Mobile", "International", "VOIP" or "Other"
    std::optional<std::size_t> band; ///< position in the key; absent: white
    std::string groupLabel;          ///< on a map of customer groups, the name of its group or "(None)"
};

/// In the order in which they stand.
using CallTypeBars = std::array<CallTypeBar, 4>;

/// The band of a value among the breaks of a key, which has one band more than breaks. A value at the first break or
/// below takes the first band, one at the last break or above the last. Nothing without breaks; throws RuntimeError 13
/// where one is no number.
std::optional<std::size_t> bandOf(long value, const std::vector<std::string>& breaks);

/// The key column of a statistics table, without regard to case; empty for a table that has no bars.
std::string_view keyColumnOf(std::string_view statisticsTable);

/// On maps of areas. Read gdbSystem; throw DatabaseError. Main thread.
CallTypeBars callTypeBars(const std::string& statisticsTable, const std::string& column,
                          const std::vector<std::string>& breaks);
/// On a map of customer groups: each bar stands for the group that its calls belong to.
CallTypeBars callTypeBarsOfGroups(const std::string& column, const std::vector<std::string>& breaks);
