#pragma once

#include "stats/FigureSource.h"
#include "stats/calls/ScanCalls.h"

#include <string>
#include <vector>

class Database;

/// Throws DatabaseError 3421 where one of the columns is there and no text: statements cannot compare it with texts, so
/// nor may a scan.
void expectText(Database& project, const std::string& table, const std::vector<std::string>& columns);

/// TblMappingGIS as a scan of calls needs it: the places of each code of the columns, and the areas of one boundary,
/// which are the same where their names compare equal. Areas are in the order of their names, null first.
struct AreasOfCodes {
    /// Throws DatabaseError where the project lacks the table or a column, and 3421 where one of them is no text.
    AreasOfCodes(Database& project, const std::string& areaColumn, const CallColumns& columns);

    ScanBoundary boundary;
    std::vector<AreaName> names;                          ///< by area: one of its spellings
    std::vector<AreaName> spellings;                      ///< by place, a row of the table
    std::vector<std::vector<std::uint32_t>> placesOfCode; ///< by id of the code
};
