#pragma once

#include "data/shapes/Geos.h"

#include <vector>

/// The polygons of a geometry, looked at one by one. The pointers belong to the geometry.

/// Whether rings do not cross, holes lie inside their polygon and polygons do not overlap.
bool isValid(const Geos& geos, const GEOSGeometry* area);

/// Its polygons that enclose something; lines and points are passed over.
std::vector<const GEOSGeometry*> polygonsOf(const Geos& geos, const GEOSGeometry* geometry);

/// Copies of the polygons as one geometry; of none, an empty one.
Geos::Geometry collectPolygons(const Geos& geos, const std::vector<const GEOSGeometry*>& polygons);

/// The outer ring of a polygon, and its holes behind it; the outer ring runs anticlockwise, holes clockwise.
std::vector<ShapeRing> ringsOf(const Geos& geos, const GEOSGeometry* polygon);

/// The smallest upright box round a geometry; a box of zeros round an empty one.
ShapeBounds boxOf(const Geos& geos, const GEOSGeometry* geometry);

/// Fills the holes of an area that are thinner than `width`, map units, together with what lies inside them. Returns
/// whether there were any.
bool fillThinHoles(const Geos& geos, Geos::Geometry& area, double width);

/// Fills the bays of an area that are thinner than `width` (see ThinBays.h). A polygon that would cross itself stays as
/// it was, and so does the whole area where its polygons would overlap. Returns whether bays were filled; the area then
/// is known to be valid.
bool fillThinBays(const Geos& geos, Geos::Geometry& area, double width);
