#include "groups/shapes/AreaUnion.h"

#include "core/RuntimeError.h"
#include "groups/shapes/AreaParts.h"

#include <algorithm>
#include <string>

namespace {

constexpr long internalError = 51;
constexpr double AreaTolerance = 1e-6;    ///< of the area: what the union of a rough border may add or take
constexpr double RoundingOfAreas = 1e-12; ///< of the areas

/// As its writer ordered them: an outer ring runs anticlockwise and its holes, clockwise, follow it.
Geos::Geometry asOrdered(const Geos& geos, const std::vector<ShapeRing>& rings) {
    std::vector<Geos::Geometry> polygons;
    for (std::size_t first = 0; first < rings.size();) {
        std::size_t end = first + 1;
        while (end < rings.size() && signedDoubleArea(rings[end]) < 0)
            ++end;
        polygons.push_back(geos.polygon(std::span(rings).subspan(first, end - first)));
        first = end;
    }
    return geos.collect(std::move(polygons));
}

/// What the lines enclose, odd and even; lines and points that are left over do not count.
Geos::Geometry madeValid(const Geos& geos, const GEOSGeometry* area) {
    const Geos::Geometry made = geos.own(GEOSMakeValid_r(geos.handle(), area));
    return collectPolygons(geos, polygonsOf(geos, made.get()));
}

bool boxesMeet(const Geos& geos, const GEOSGeometry* a, const GEOSGeometry* b) {
    const ShapeBounds boxA = boxOf(geos, a);
    const ShapeBounds boxB = boxOf(geos, b);
    return boxA.lowX <= boxB.upX && boxB.lowX <= boxA.upX && boxA.lowY <= boxB.upY && boxB.lowY <= boxA.upY;
}

/// Both as they are, for areas that cannot touch.
Geos::Geometry sideBySide(const Geos& geos, const GEOSGeometry* a, const GEOSGeometry* b) {
    auto polygons = polygonsOf(geos, a);
    const auto others = polygonsOf(geos, b);
    polygons.insert(polygons.end(), others.begin(), others.end());
    return collectPolygons(geos, polygons);
}

/// Square map units.
struct UnionAreas {
    double a;
    double b;
    double united;
};

void check(const UnionAreas& areas) {
    const auto& [areaA, areaB, areaUnited] = areas;
    const double slack = AreaTolerance * (areaA + areaB);
    if (areaUnited < std::max(areaA, areaB) - slack || areaUnited > areaA + areaB + slack)
        throw RuntimeError(internalError, "geometry: areas of " + std::to_string(areaA) + " and " +
                                              std::to_string(areaB) + " cannot make one of " +
                                              std::to_string(areaUnited));
}

/// Neighbours that agree on their border have no area in common and leave no gaps.
bool bordersAgree(const UnionAreas& areas, bool gapsWereFilled) {
    const double sum = areas.a + areas.b;
    return !gapsWereFilled && sum - areas.united <= RoundingOfAreas * sum;
}

} // namespace

Geos::Geometry areaOf(const Geos& geos, const Shape& shape) {
    Geos::Geometry area = asOrdered(geos, shape.rings);
    if (isValid(geos, area.get()))
        return area;
    // Its lines alone count, so which ring is taken for the outer one does not matter.
    return madeValid(geos, geos.polygon(shape.rings).get());
}

Geos::Geometry uniteAreas(const Geos& geos, const GEOSGeometry* a, const GEOSGeometry* b) {
    if (!boxesMeet(geos, a, b))
        return sideBySide(geos, a, b);
    Geos::Geometry united = geos.own(GEOSUnion_r(geos.handle(), a, b));
    const UnionAreas areas{geos.area(a), geos.area(b), geos.area(united.get())};
    check(areas);
    const bool gapsWereFilled = fillThinHoles(geos, united, ThinnestGap);
    if (!bordersAgree(areas, gapsWereFilled) && fillThinBays(geos, united, ThinnestGap))
        return united;
    return isValid(geos, united.get()) ? std::move(united) : madeValid(geos, united.get());
}

Shape shapeOfArea(const Geos& geos, const GEOSGeometry* area) {
    const Geos::Geometry ordered = geos.own(GEOSGeom_clone_r(geos.handle(), area));
    GEOSNormalize_r(geos.handle(), ordered.get());
    Shape shape;
    for (const GEOSGeometry* polygon : polygonsOf(geos, ordered.get())) {
        auto rings = ringsOf(geos, polygon);
        std::move(rings.begin(), rings.end(), std::back_inserter(shape.rings));
    }
    return shape;
}

ShapePoint centreOfArea(const Geos& geos, const GEOSGeometry* area) {
    const auto polygons = polygonsOf(geos, area);
    if (polygons.empty())
        return {};
    const GEOSGeometry* largest =
        *std::max_element(polygons.begin(), polygons.end(),
                          [&](const GEOSGeometry* a, const GEOSGeometry* b) { return geos.area(a) < geos.area(b); });
    const ShapeBounds box = boxOf(geos, largest);
    const ShapePoint middle{(box.lowX + box.upX) / 2.0, (box.lowY + box.upY) / 2.0};
    if (geos.truth(GEOSContains_r(geos.handle(), largest, geos.point(middle).get())))
        return middle;
    const Geos::Geometry inside = geos.own(GEOSPointOnSurface_r(geos.handle(), largest));
    ShapePoint centre;
    GEOSGeomGetX_r(geos.handle(), inside.get(), &centre.x);
    GEOSGeomGetY_r(geos.handle(), inside.get(), &centre.y);
    return centre;
}
