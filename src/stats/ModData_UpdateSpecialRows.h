#pragma once

#include <string>

class FigureSource;

/// Repairs the side-panel rows 'VOIP', 'International', 'Mobile' and 'Other' of a selected or animated table for one
/// period: made anew at the first period of the table, their calls and money counted from SelectedData, and in selected
/// tables the callers of mobile and VOIP numbers added. Errors are logged under gsCurrentProc and passed over; a table
/// that has no such rows is left alone with a line in the log.
void ModData_UpdateSpecialRows(const std::string& tableName, int period);

/// The same, with the figures of a run that is under way.
void updateSpecialRows(const std::string& tableName, int period, FigureSource& figures);
