#pragma once

#include <string>

/// Counts the calls of the open project, as chosen by SelectionSql, by CSG: into TblCSG for the whole project or
/// TblSelectedDataForCSG for a selection, whose rows are always made anew. CSGs of the map without calls have a row.
/// Callers have figures in period 1 only. Otherwise as ModData_SelectedTVArea.
void ModData_SelectedCSGData(const std::string& tableName, int period);
