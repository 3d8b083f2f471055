#pragma once

#include "data/shapes/Geos.h"

/// Areas of the map as valid polygons: rings do not cross, holes lie inside their polygon, polygons do not overlap.
/// Map units. All throw RuntimeError where the geometry library cannot go on.

/// A gap of less than this, ten metres, is no place but the trace of two outlines that do not agree.
inline constexpr double ThinnestGap = 1.0;

/// The area that a shape covers when it is drawn: points inside an odd number of its rings. Empty where the rings
/// enclose nothing.
Geos::Geometry areaOf(const Geos& geos, const Shape& shape);

/// The area that both cover together. Holes thinner than ThinnestGap are filled, wherever they come from, and so are
/// cracks at the coast where the outlines of both do not agree.
Geos::Geometry uniteAreas(const Geos& geos, const GEOSGeometry* a, const GEOSGeometry* b);

/// The rings of an area, each outer ring followed by its holes; outer rings anticlockwise, holes clockwise. Equal areas
/// have equal rings. No rings where the area is empty.
Shape shapeOfArea(const Geos& geos, const GEOSGeometry* area);

/// A point on the area's largest polygon: the middle of its box where that lies on it, else some other point inside.
ShapePoint centreOfArea(const Geos& geos, const GEOSGeometry* area);
