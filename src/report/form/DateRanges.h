#pragma once

#include "report/ProjectPeriod.h"
#include "stats/ModData_GetMultiMapData.h"

/// Rules of the panel of several maps. The pickers stand in four columns: first day, time from which, last day, time to
/// which calls count; a row is a map.

inline constexpr int mostMaps = 6;
inline constexpr int pickersOfMap = 4;

/// Whether a column holds times of day, not days.
constexpr bool isTimeColumn(int column) {
    return column % 2 == 1;
}

/// Gives all maps, those that are not shown as well, the first map's value of a column.
void copyToAllMaps(MultiMapParameters& ranges, int column);

/// Gives the days of all maps the project's first and last. Times stay.
void setDays(MultiMapParameters& ranges, const ProjectPeriod& period);
