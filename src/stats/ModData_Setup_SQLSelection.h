#pragma once

#include "stats/ReportParameters.h"

#include <string>

/// Turns the parameters of a report into a condition on TblTeleItem and, in SelectionDescription, into words.
///
/// `selection`: the condition, " CallDate >= #…# AND …"; texts of the parameters stand in it as they are, so that * and
/// ? act as patterns and an apostrophe breaks it. Where a community group is too large, GroupLimitExceeded is set and
/// the condition is to be thrown away. `startDate` and `endDate` come back with day and month exchanged, the form in
/// which a date literal is written; whoever needs the dates again reads them from the parameters. `boundaryIndex` has
/// no effect. Errors are logged and passed over.
void ModData_Setup_SQLSelection(const ReportParameters& parameters, std::string& selection, Date& startDate,
                                Date& endDate, Date startTime, Date endTime, int boundaryIndex);
