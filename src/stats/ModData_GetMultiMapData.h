#pragma once

#include "stats/ReportParameters.h"

#include <array>

/// The date ranges of a multiple-map run; the fields mirror the controls of FrmMain under their names.
struct MultiMapParameters {
    int OptPeriods = 0; ///< 0 two maps, 1 four, 2 six
    /// Four for each range: first day, time of day from which, last day, time of day to which calls count.
    std::array<Date, 24> DTPicker1{};
};

/// How many maps OptPeriods stands for.
int mapCount(const MultiMapParameters& ranges);

/// Counts each range into a period of its own, from 2 on, of the table in use for TV regions or else postcode
/// districts, and finds the maxima over all of them, the scale that the maps share. Without `recompute` the figures are
/// taken as they stand. SelectionSql is left as that of the last range, or of the one whose community group is too
/// large, which ends the procedure. Yields.
void ModData_GetMultiMapData(const ReportParameters& parameters, const MultiMapParameters& ranges, bool recompute);
