#pragma once

#include <string>

/// Counts the calls of the open project, as chosen by SelectionSql, by postcode district into the columns of `period`
/// of TblPostCodeDistrict for the whole project, TblSelectedDataForPostCodeDistrict for a selection, or
/// TblAnimatedPostCodeDistrict1 or 2 for the frames of an animation. Districts of the map without calls have a row.
/// Callers have figures in the columns of period 1 alone, of the first range of multiple maps as of a single map. Where
/// the names cannot be brought in step with the map's, the user is told. Otherwise as ModData_SelectedTVArea.
void ModData_SelectedPostCodeData(const std::string& tableName, int period);
