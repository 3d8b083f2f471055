#pragma once

#include "data/shapes/Geos.h"

#include <vector>

/// The polygons of a geometry, looked at one by one. The pointers belong to the geometry.

/// Its polygons that enclose something; lines and points are passed over.
std::vector<const GEOSGeometry*> polygonsOf(const Geos& geos, const GEOSGeometry* geometry);

/// Copies of the polygons as one geometry; of none, an empty one.
Geos::Geometry collectPolygons(const Geos& geos, const std::vector<const GEOSGeometry*>& polygons);

/// The outer ring of a polygon, and its holes behind it.
std::vector<ShapeRing> ringsOf(const Geos& geos, const GEOSGeometry* polygon);

/// The smallest upright box round a geometry; a box of zeros round an empty one.
ShapeBounds boxOf(const Geos& geos, const GEOSGeometry* geometry);

/// The area with its holes filled that are thinner than `width`, map units, together with what lies inside them.
Geos::Geometry withoutThinHoles(const Geos& geos, Geos::Geometry area, double width);
