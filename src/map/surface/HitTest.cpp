#include "map/surface/HitTest.h"

#include <set>
#include <utility>

namespace {

/// Places looked at across and along an area to learn how much of it lies inside an outline.
constexpr int ProbesPerSide = 7;

/// Whether a line from the point to the west crosses the edge. Each corner belongs to one of its two edges.
bool crosses(const QPointF& from, const QPointF& to, const QPointF& point) {
    if ((from.y() > point.y()) == (to.y() > point.y()))
        return false;
    return point.x() < from.x() + (to.x() - from.x()) * (point.y() - from.y()) / (to.y() - from.y());
}

bool isInBox(const QRectF& box, const QPointF& point) {
    return point.x() >= box.left() && point.x() <= box.right() && point.y() >= box.top() && point.y() <= box.bottom();
}

bool boxesMeet(const QRectF& a, const QRectF& b) {
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}

bool isPolygonLayer(const DrawnMap& map, std::size_t layer) {
    return map.inPicture(layer) != nullptr && map.scene.layers[layer].LayerInterpretation == CoverageKind::Polygons;
}

bool halfLiesWithin(const MapShape& polygon, const QPolygonF& outline) {
    int inArea = 0, inBoth = 0;
    for (int row = 0; row < ProbesPerSide; ++row) {
        for (int column = 0; column < ProbesPerSide; ++column) {
            const QPointF share((column + 0.5) / ProbesPerSide, (row + 0.5) / ProbesPerSide);
            const QPointF probe(polygon.bounds.left() + share.x() * polygon.bounds.width(),
                                polygon.bounds.top() + share.y() * polygon.bounds.height());
            if (!isInside(polygon, probe))
                continue;
            ++inArea;
            inBoth += outline.containsPoint(probe, Qt::OddEvenFill);
        }
    }
    if (inArea > 0)
        return 2 * inBoth >= inArea;
    // So thin or scattered that no probe met it: a corner speaks for it.
    const ShapePoint& corner = polygon.shape.rings.front().front();
    return outline.containsPoint({corner.x, corner.y}, Qt::OddEvenFill);
}

} // namespace

bool isInside(const MapShape& polygon, const QPointF& mapPoint) {
    if (!isInBox(polygon.bounds, mapPoint))
        return false;
    bool inside = false;
    for (const ShapeRing& ring : polygon.shape.rings) {
        for (std::size_t i = 1; i < ring.size(); ++i)
            inside ^= crosses({ring[i - 1].x, ring[i - 1].y}, {ring[i].x, ring[i].y}, mapPoint);
    }
    return inside;
}

std::optional<MapHit> areaAt(const DrawnMap& map, const QPointF& mapPoint) {
    for (std::size_t layer = map.contents.size(); layer-- > 0;) {
        if (!isPolygonLayer(map, layer))
            continue;
        const LayerContent& content = map.contents[layer];
        for (std::size_t drawn = content.shapes.size(); drawn-- > 0;) {
            if (isInside(content.table->shapes()[content.shapes[drawn].shape], mapPoint))
                return MapHit{layer, drawn};
        }
    }
    return {};
}

std::vector<MapHit> areasWithin(const DrawnMap& map, const QPolygonF& mapOutline) {
    std::vector<MapHit> found;
    std::set<std::pair<const ShapeTable*, std::size_t>> told;
    const QRectF bounds = mapOutline.boundingRect();
    for (std::size_t layer = map.contents.size(); layer-- > 0;) {
        if (!isPolygonLayer(map, layer))
            continue;
        const LayerContent& content = map.contents[layer];
        for (std::size_t drawn = 0; drawn < content.shapes.size(); ++drawn) {
            const std::size_t shape = content.shapes[drawn].shape;
            const MapShape& polygon = content.table->shapes()[shape];
            if (boxesMeet(polygon.bounds, bounds) && halfLiesWithin(polygon, mapOutline) &&
                told.emplace(content.table.get(), shape).second)
                found.push_back({layer, drawn});
        }
    }
    return found;
}

const Layer& layerOf(const DrawnMap& map, const MapHit& hit) {
    return map.scene.layers[hit.layer];
}

const DrawnShape& drawnOf(const DrawnMap& map, const MapHit& hit) {
    return map.contents[hit.layer].shapes[hit.drawn];
}

const MapShape& shapeOf(const DrawnMap& map, const MapHit& hit) {
    return map.contents[hit.layer].table->shapes()[drawnOf(map, hit).shape];
}
