#pragma once

#include "data/engine/Recordset.h"

#include <cstdint>
#include <string>
#include <string_view>

/// References that are no places: callers that have no area. The shape tables hold rows named after them.
inline constexpr std::string_view CallAreas = "('Mobile', 'International', 'Other', 'VOIP')";

/// Members of the account's groups with their shapes: "SELECT … where tallyaccount = 'account'"; conditions follow.
std::string selectMembers(const std::string& shapeTable);

/// Coordinate of the current row in whole map units. Throws RuntimeError where it is null or no 32-bit number.
std::int32_t wholeUnits(const Recordset& rows, std::string_view column);

/// The middle between two coordinates, rounded half to even.
std::int32_t middle(std::int32_t low, std::int32_t high);
