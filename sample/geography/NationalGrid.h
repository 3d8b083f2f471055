#pragma once

#include "sample/geography/Geography.h"

namespace sample {

/// A place on the earth, degrees, north and east positive.
struct LatLon {
    double latitude = 0;
    double longitude = 0;
};

/// Easting and northing on the British National Grid, metres.
struct GridReference {
    double easting = 0;
    double northing = 0;
};

/// The Transverse Mercator projection of the grid, from latitude and longitude on the Airy 1830 ellipsoid (OSGB36).
/// Good to a millimetre in Great Britain and to some centimetres in Ireland and the Channel Islands.
GridReference projectAiry(LatLon osgb36);

/// From WGS84 (what satellites and atlases give) to OSGB36 by the seven-parameter shift, good to about five metres.
LatLon wgs84ToOsgb36(LatLon wgs84);

/// Latitude and longitude on WGS84 as a place on the map.
MapPoint toMap(LatLon wgs84);

} // namespace sample
