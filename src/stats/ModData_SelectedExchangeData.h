#pragma once

#include <string>

/// Counts the calls of the open project, as chosen by SelectionSql, by exchange: into TblExchangeArea for the whole
/// project or TblSelectedDataForExchangeArea for a selection, whose rows are always made anew. Callers have figures in
/// period 1 only. Where the names of the whole project cannot be brought in step with the map's, the user is told.
/// Otherwise as ModData_SelectedTVArea.
void ModData_SelectedExchangeData(const std::string& tableName, int period);
