#pragma once

#include "data/types/Value.h"
#include "sample/geography/Geography.h"
#include "sample/installation/ReferenceCodes.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

class Database;

namespace sample {

/// What more than one file of the installation says.

/// Version of the system map database, which its project has taken.
inline constexpr Money mapVersion{2'1000};
/// The day of its geography, which the project has taken too.
Date boundaryDate();

/// A postcode district and the customer group that it is in.
struct GroupMember {
    Value district;
    Value group; ///< null: none
};
/// One for each district, in the order of the geography.
std::vector<GroupMember> groupMembers(const Geography& geography);

/// Fills a table of the columns [1141], Exchange, CSG, DMSU, PostCode, TVArea.
void writeCodes(Database& database, std::string_view table, std::span<const ReferenceCode> codes);

} // namespace sample
