#pragma once

#include "sample/geography/Geography.h"
#include "sample/geography/PlaneGeometry.h"

#include <string>
#include <vector>

namespace sample {

/// One geography for all tests of the program, made at the first call.
inline const Geography& sharedGeography() {
    static const Geography geography = makeGeography(1);
    return geography;
}

struct Boundary {
    std::string name;
    const std::vector<Area>& areas;
};

inline std::vector<Boundary> boundaries(const Geography& geography) {
    return {{"exchange areas", geography.exchangeAreas},
            {"CSGs", geography.csgs},
            {"postcode districts", geography.postcodeDistricts},
            {"TV regions", geography.tvRegions},
            {"borders", geography.borders}};
}

inline bool holds(const Area& area, MapPoint point) {
    int around = 0;
    for (const Ring& ring : area.rings)
        around += ringHolds(ring.vertices, point) ? 1 : 0;
    return around % 2 == 1;
}

/// Names of all areas that hold the point: one on land, none at sea.
inline std::vector<std::string> namesAt(const std::vector<Area>& areas, MapPoint point) {
    std::vector<std::string> names;
    for (const Area& area : areas)
        if (holds(area, point))
            names.push_back(area.name);
    return names;
}

} // namespace sample
