#pragma once

#include "stats/ModData_GetMultiMapData.h"
#include "stats/ReportParameters.h"

/// What a report asks of its parameters before it runs. Each tells the user what is wrong, or asks whether it is meant,
/// through the prompts; false ends the run. Main thread.

/// The days are in order.
bool checkDates(const ReportParameters& parameters);
/// Wherever an option stands on a list, an entry of that list is chosen.
bool checkChoices(const ReportParameters& parameters);
/// Hours that end where they begin, or before, are meant.
bool confirmTimes(const ReportParameters& parameters);
/// Days and hours of the ranges of several maps; asks about each kind of hours once.
bool checkRanges(const ReportParameters& parameters, const MultiMapParameters& ranges);
