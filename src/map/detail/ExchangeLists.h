#pragma once

#include "map/detail/AreaDetail.h"

#include <string>
#include <string_view>

/// Whether a name stands for calls without a place on the map: Mobile, International, VOIP or Other, in any case.
bool isCallType(std::string_view name);

/// The exchanges of a TV region, CSG or postcode district, or a line that says there are none. Other boundaries have no
/// list. Reads gdbProject; throws DatabaseError.
void listExchangesOfArea(std::string_view boundaryType, const std::string& name, AreaDetail& detail);

enum class GroupMembersListed { Areas, AreasAndCallTypes };

/// The exchanges of a customer group, with its call types where they are asked for. A group that has the name of a
/// call type has no list. Reads gdbProject; throws DatabaseError.
void listExchangesOfGroup(const std::string& group, long baseGeography, GroupMembersListed members, AreaDetail& detail);
