#pragma once

#include "stats/ReportParameters.h"

/// Whether a report's parameters differ from the whole project: other days than the project's first and last, hours
/// other than the whole day, or a choice of inbound numbers, answer points or a destination. Only then are the figures
/// of the selection counted; otherwise those of the whole project are shown as they stand.
bool workOutFilterActive(const ReportParameters& parameters, Date projectStart, Date projectEnd);
