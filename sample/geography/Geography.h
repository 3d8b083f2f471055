#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sample {

/// Everywhere in this folder: map units are ten metres on the British National Grid, x = easting / 10, y = northing
/// / 10.
struct MapPoint {
    double x = 0;
    double y = 0;

    friend bool operator==(const MapPoint&, const MapPoint&) = default;
};

/// A closed ring: the last vertex equals the first. Outer rings run anticlockwise, holes clockwise.
struct Ring {
    std::vector<MapPoint> vertices;
};

struct Area {
    std::string name;
    std::vector<Ring> rings; ///< each outer ring, the largest first, is followed by its holes
    MapPoint label;          ///< inside the largest part
};

/// A range of callers' numbers and the areas that it lies in.
struct CallCode {
    std::string code; ///< leading digits of a caller's number without the leading 0, for instance "1224632"
    int exchange = 0; ///< index into Geography::exchangeAreas, and so on
    int csg = 0;
    int postcodeDistrict = 0;
    int tvRegion = 0;
    double weight = 0; ///< share of the population; all codes together give 1
};

/// The invented geography of the sample installation. The coast, the towns and the names are real, the lines between
/// the areas are made up. Each of the four boundaries covers the whole land without gap or overlap, and neighbours
/// share their vertices to the last bit. Every boundary ends with the area "Republic Of Ireland", which has no codes.
struct Geography {
    std::vector<Area> exchangeAreas;
    std::vector<std::string> exchangePrefix; ///< per exchange: every code of it begins so, no code of another does
    std::vector<Area> csgs;                  ///< each a union of exchange areas
    std::vector<Area> postcodeDistricts;
    std::vector<Area> tvRegions; ///< each a union of postcode districts
    std::vector<Area> borders;   ///< nations of the United Kingdom, its neighbours and the islands
    std::vector<CallCode> codes; ///< ordered by code
};

inline constexpr char republicOfIreland[] = "Republic Of Ireland";

/// Makes the same geography, to the last bit, for the same seed. Takes a few seconds. Any thread; throws
/// std::runtime_error when the compiled-in data does not fit together, naming the file and line.
Geography makeGeography(std::uint64_t seed);

} // namespace sample
