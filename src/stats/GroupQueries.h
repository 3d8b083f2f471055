#pragma once

#include "stats/FigureSource.h"
#include "stats/GroupFigures.h"

#include <string>
#include <string_view>

/// The rows of the working tables of customer groups as queries over TblGroups, TblTempGIS and the calls. `into` is
/// " INTO table" for a statement that makes one, or empty.

/// The column of TblTempGIS in which a call finds its area, and that of the areas without calls.
std::string groupAreaColumn(GroupAreas areas);
std::string columnOfAreasWithoutCalls(GroupAreas areas);
/// The calls beside the map that the user has put into a group: "'Mobile', 'VOIP'", or nothing.
std::string callAreasInGroups();

/// GroupName, CalledNo, AnswerInd and Discounted of the selected calls; without the order of the rows.
std::string groupedCallsQuery(GroupAreas areas, const std::string& where, std::string_view into = {});
/// The distinct pairs of caller and group: of areas in a group with a name, or with an empty one, where the area stands
/// for it. `where` follows an AND.
std::string groupCallersQuery(GroupAreas areas, CallerKind kind, bool named, const std::string& where,
                              std::string_view into = {});
