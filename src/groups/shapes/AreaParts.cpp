#include "groups/shapes/AreaParts.h"

#include "groups/shapes/ThinBays.h"

#include <algorithm>
#include <cmath>

namespace {

/// Twice the area by the length of the outline: the width of a long strip, and half the side of a square.
bool isThin(const ShapeRing& ring, double width) {
    double length = 0.0;
    for (std::size_t i = 0; i + 1 < ring.size(); ++i)
        length += std::hypot(ring[i + 1].x - ring[i].x, ring[i + 1].y - ring[i].y);
    return std::abs(signedDoubleArea(ring)) < width * length;
}

/// A polygon whose thin holes are taken out of it.
struct Filled {
    Geos::Geometry polygon;
    std::vector<Geos::Geometry> filledHoles;
};

Filled withoutThinHoles(const Geos& geos, const GEOSGeometry* polygon, double width) {
    std::vector<ShapeRing> rings = ringsOf(geos, polygon);
    const auto thin = std::stable_partition(rings.begin() + 1, rings.end(),
                                            [&](const ShapeRing& hole) { return !isThin(hole, width); });
    Filled filled;
    for (auto hole = thin; hole != rings.end(); ++hole)
        filled.filledHoles.push_back(geos.polygon(std::span(&*hole, 1)));
    rings.erase(thin, rings.end());
    filled.polygon = geos.polygon(rings);
    return filled;
}

bool boxHolds(const ShapeBounds& outer, const ShapeBounds& inner) {
    return outer.lowX <= inner.lowX && outer.lowY <= inner.lowY && outer.upX >= inner.upX && outer.upY >= inner.upY;
}

bool liesInOneOf(const Geos& geos, const std::vector<Geos::Geometry>& holes, const GEOSGeometry* polygon) {
    return std::any_of(holes.begin(), holes.end(), [&](const Geos::Geometry& hole) {
        return boxHolds(boxOf(geos, hole.get()), boxOf(geos, polygon)) &&
               geos.truth(GEOSContains_r(geos.handle(), hole.get(), polygon));
    });
}

/// Null where there is nothing to fill.
Geos::Geometry withoutThinBays(const Geos& geos, const GEOSGeometry* polygon, double width) {
    std::vector<ShapeRing> rings = ringsOf(geos, polygon);
    bool changed = false;
    for (ShapeRing& ring : rings) {
        ShapeRing filled = withoutThinBays(ring, width);
        changed = changed || filled.size() != ring.size();
        ring = std::move(filled);
    }
    return changed ? geos.polygon(rings) : Geos::Geometry();
}

bool hasHoles(const Geos& geos, const GEOSGeometry* polygon) {
    return GEOSGetNumInteriorRings_r(geos.handle(), polygon) > 0;
}

} // namespace

bool isValid(const Geos& geos, const GEOSGeometry* area) {
    return geos.truth(GEOSisValid_r(geos.handle(), area));
}

std::vector<const GEOSGeometry*> polygonsOf(const Geos& geos, const GEOSGeometry* geometry) {
    std::vector<const GEOSGeometry*> polygons;
    const int parts = GEOSGetNumGeometries_r(geos.handle(), geometry);
    for (int i = 0; i < parts; ++i) {
        const GEOSGeometry* part = GEOSGetGeometryN_r(geos.handle(), geometry, i);
        const int type = GEOSGeomTypeId_r(geos.handle(), part);
        if (type == GEOS_MULTIPOLYGON) {
            const auto inner = polygonsOf(geos, part);
            polygons.insert(polygons.end(), inner.begin(), inner.end());
        } else if (type == GEOS_POLYGON && !geos.truth(GEOSisEmpty_r(geos.handle(), part))) {
            polygons.push_back(part);
        }
    }
    return polygons;
}

Geos::Geometry collectPolygons(const Geos& geos, const std::vector<const GEOSGeometry*>& polygons) {
    std::vector<Geos::Geometry> copies;
    for (const GEOSGeometry* polygon : polygons)
        copies.push_back(geos.own(GEOSGeom_clone_r(geos.handle(), polygon)));
    return geos.collect(std::move(copies));
}

std::vector<ShapeRing> ringsOf(const Geos& geos, const GEOSGeometry* polygon) {
    std::vector<ShapeRing> rings{geos.ringOf(GEOSGetExteriorRing_r(geos.handle(), polygon))};
    const int holes = GEOSGetNumInteriorRings_r(geos.handle(), polygon);
    for (int i = 0; i < holes; ++i)
        rings.push_back(geos.ringOf(GEOSGetInteriorRingN_r(geos.handle(), polygon, i)));
    for (std::size_t i = 0; i < rings.size(); ++i) {
        const bool anticlockwise = signedDoubleArea(rings[i]) > 0;
        if (anticlockwise != (i == 0))
            std::reverse(rings[i].begin(), rings[i].end());
    }
    return rings;
}

ShapeBounds boxOf(const Geos& geos, const GEOSGeometry* geometry) {
    ShapeBounds box;
    GEOSGeom_getExtent_r(geos.handle(), geometry, &box.lowX, &box.lowY, &box.upX, &box.upY);
    return box;
}

bool fillThinHoles(const Geos& geos, Geos::Geometry& area, double width) {
    const auto polygons = polygonsOf(geos, area.get());
    std::vector<Geos::Geometry> filled;
    std::vector<Geos::Geometry> filledHoles;
    for (const GEOSGeometry* polygon : polygons) {
        if (!hasHoles(geos, polygon)) {
            filled.push_back(geos.own(GEOSGeom_clone_r(geos.handle(), polygon)));
            continue;
        }
        Filled one = withoutThinHoles(geos, polygon, width);
        filled.push_back(std::move(one.polygon));
        std::move(one.filledHoles.begin(), one.filledHoles.end(), std::back_inserter(filledHoles));
    }
    if (filledHoles.empty())
        return false;
    std::erase_if(filled, [&](const Geos::Geometry& polygon) { return liesInOneOf(geos, filledHoles, polygon.get()); });
    area = geos.collect(std::move(filled));
    return true;
}

bool fillThinBays(const Geos& geos, Geos::Geometry& area, double width) {
    const auto polygons = polygonsOf(geos, area.get());
    std::vector<Geos::Geometry> filled;
    bool changed = false;
    for (const GEOSGeometry* polygon : polygons) {
        Geos::Geometry whole = withoutThinBays(geos, polygon, width);
        // Alone it is looked at below.
        if (whole && (polygons.size() == 1 || isValid(geos, whole.get())))
            changed = true;
        else
            whole = geos.own(GEOSGeom_clone_r(geos.handle(), polygon));
        filled.push_back(std::move(whole));
    }
    if (!changed)
        return false;
    Geos::Geometry whole = geos.collect(std::move(filled));
    if (!isValid(geos, whole.get())) // an island lies in a bay
        return false;
    area = std::move(whole);
    return true;
}
