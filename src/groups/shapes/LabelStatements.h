#pragma once

#include "data/engine/Recordset.h"

#include <cstdint>
#include <string>
#include <string_view>

/// References that are no places: callers that have no area. The shape tables hold rows named after them.
inline constexpr std::string_view CallAreas = "('Mobile', 'International', 'Other', 'VOIP')";

/// The rows of a table of members with the boxes and centres of their shapes: "SELECT … INNER JOIN … ON …".
std::string joinMembers(const std::string& members, const std::string& shapeTable);

/// The members of the account's groups: "SELECT … where tallyaccount = 'account'"; conditions follow.
std::string selectMembers(const std::string& shapeTable);

/// Coordinate of the current row in whole map units. Throws RuntimeError where it is null or no 32-bit number.
std::int32_t wholeUnits(const Recordset& rows, std::string_view column);

/// The middle between two coordinates, rounded half to even.
std::int32_t middle(std::int32_t low, std::int32_t high);
