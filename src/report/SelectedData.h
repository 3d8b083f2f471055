#pragma once

#include "stats/ModData_GetMultiMapData.h"
#include "stats/ReportParameters.h"

/// What the last runs were asked for stands in the one row of TblDataCapture of the system map database: columns with a
/// 1 behind their name for the single map, with 2 to 7 for the ranges of several maps. A run with the same parameters
/// takes the figures that are there. Errors are logged and passed over; main thread.

/// The figures of the selection must be counted anew.
extern bool RecomputeSelection;

/// Sets RecomputeSelection where the parameters of a single map or gsBoundaryType are not those of the row, or where
/// Callscope has changed the project (UpdateMapping of Tbl50 is 1, and 0 afterwards). Never clears it. Without a row
/// there is nothing to compare.
void CheckSelectedData(const ReportParameters& parameters);
/// Writes gsBoundaryType and the parameters of a single map to the row, where there is one.
void SaveSelectedData(const ReportParameters& parameters);

/// The same for several maps, with the project that they belong to. Neither UpdateMapping nor the overnight tick is
/// looked at.
void CheckMultiData(const ReportParameters& parameters, const MultiMapParameters& ranges);
void SaveMultiData(const ReportParameters& parameters, const MultiMapParameters& ranges);
