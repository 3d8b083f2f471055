#pragma once

#include <string>

/// Counts the calls of the open project, as chosen by SelectionSql, by TV region into the columns of `period` of the
/// table `tableName`: TblTV for the whole project, TblSelectedDataForTV for a selection, TblAnimatedTV1 or
/// TblAnimatedTV2 for the frames of an animation.
///
/// Needs gsProjectPath, gsSystemDBPath and the links of the system map database. Never fails: errors are logged and the
/// rest is counted. One transaction over the open files. Yields, so the caller's window must be disabled. Main thread.
void ModData_SelectedTVArea(const std::string& tableName, int period);
