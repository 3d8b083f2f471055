#pragma once

#include "stats/FigureSource.h"

#include <optional>
#include <string>
#include <vector>

/// The working tables SelectedData, TblAnsweredCallers and TblLostCallers as a scan leaves them behind: as views with
/// the rows that the statements would have put into tables, so that no call is written. `area` is a column of
/// TblMappingGIS. Failures are logged under gsCurrentProc and passed over.

/// Leaves the rows of any query over the project behind.
void leaveView(const std::string& name, const std::string& query);

void leaveSelectedCalls(const std::string& area, const CallSelection& selection);

/// `counts` are the callers by area that the view shows; they are remembered.
void leaveCallers(CallerKind kind, const std::string& area, const std::string& where, std::vector<CallerCount> counts);

/// The counts of the callers that the last run left behind by this boundary's areas. Nothing where they are of another
/// boundary, or were left by other means than leaveCallers: the table has to be asked.
std::optional<std::vector<CallerCount>> leftCallers(CallerKind kind, const std::string& area);
