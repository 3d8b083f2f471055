#pragma once

#include "stats/GroupFigures.h"
#include "stats/calls/ScanCalls.h"

#include <string>
#include <vector>

class Database;

/// TblTempGIS and TblGroups as a scan of calls needs them. Groups are the names in TblGroups, the same where they
/// compare equal, numbered in the order of their names.
struct GroupsOfCodes {
    /// Throws DatabaseError where the project lacks one of the tables or a column.
    GroupsOfCodes(Database& project, GroupAreas areas, const CallColumns& columns);

    /// To which groups the calls of a code count, as often as its areas are members; an area in no named group counts
    /// for a group that bears its name.
    ScanBoundary calls;
    /// The same for callers, who count where the area is a member only: of a named group, or of one without a name, in
    /// whose place the area stands.
    ScanBoundary namedMembers, unnamedMembers;
    std::vector<std::string> names;          ///< by group
    std::vector<std::uint32_t> namedAsAreas; ///< groups that bear the name of an area, calls or not; each once
};
