#pragma once

#include <string>

/// Counts the calls of the open project, as chosen by SelectionSql, by the customer groups of its account: into
/// TblCustomerGroups for the whole project or TblSelectedDataForCustomerGroups for a selection. Callers have figures in
/// period 1 only; lost callers are those of all dates. Without groups the table is left as it was; where it is not
/// known of which areas the groups are made, the calls that an earlier run selected are counted. Otherwise as
/// ModData_SelectedTVArea.
void ModData_SelectedCustomerGroups(const std::string& tableName, int period);
