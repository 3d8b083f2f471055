#include "report/form/DateRanges.h"

namespace {

Date& picker(MultiMapParameters& ranges, int map, int column) {
    return ranges.DTPicker1[static_cast<std::size_t>(map * pickersOfMap + column)];
}

} // namespace

void copyToAllMaps(MultiMapParameters& ranges, int column) {
    for (int map = 1; map < mostMaps; ++map)
        picker(ranges, map, column) = picker(ranges, 0, column);
}

void setDays(MultiMapParameters& ranges, const ProjectPeriod& period) {
    for (int map = 0; map < mostMaps; ++map) {
        picker(ranges, map, 0) = period.start;
        picker(ranges, map, 2) = period.end;
    }
}
