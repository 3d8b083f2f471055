#include "map/surface/ScreenPaths.h"

#include <QPolygonF>

#include <cmath>

namespace {

/// Pixels outside the view that are still kept: an outline along the clipping box stays out of sight.
constexpr double ClipMargin = 16.0;
constexpr int FewestCorners = 3;

/// Keeps the side of a line on which `inside` holds. `crossing` is the point of an edge on the line.
template<typename Inside, typename Crossing>
ShapeRing clipAgainst(const ShapeRing& ring, Inside inside, Crossing crossing) {
    ShapeRing kept;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const ShapePoint& from = ring[i];
        const ShapePoint& to = ring[(i + 1) % ring.size()];
        if (inside(from))
            kept.push_back(from);
        if (inside(from) != inside(to))
            kept.push_back(crossing(from, to));
    }
    return kept;
}

ShapePoint atX(const ShapePoint& a, const ShapePoint& b, double x) {
    return {x, a.y + (b.y - a.y) * (x - a.x) / (b.x - a.x)};
}

ShapePoint atY(const ShapePoint& a, const ShapePoint& b, double y) {
    return {a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y), y};
}

/// The part of the map that is drawn: what is seen and a margin round it.
QRectF drawnMap(const Camera& camera) {
    const double margin = ClipMargin * camera.unitsPerPixel();
    return camera.visibleMap().adjusted(-margin, -margin, margin, margin);
}

double snapped(double pixel) {
    return std::round(pixel * 2.0) / 2.0;
}

QPolygonF screenRing(const ShapeRing& ring, const Camera& camera) {
    QPolygonF pixels;
    pixels.reserve(static_cast<qsizetype>(ring.size()));
    for (const ShapePoint& point : ring) {
        const QPointF exact = camera.mapToScreen({point.x, point.y});
        const QPointF pixel(snapped(exact.x()), snapped(exact.y()));
        if (pixels.isEmpty() || pixels.last() != pixel)
            pixels.append(pixel);
    }
    return pixels;
}

} // namespace

ShapeRing clipRing(const ShapeRing& ring, const QRectF& box) {
    const double left = box.left(), right = box.right(), low = box.top(), up = box.bottom();
    ShapeRing part = clipAgainst(
        ring, [=](const ShapePoint& p) { return p.x >= left; },
        [=](const ShapePoint& a, const ShapePoint& b) { return atX(a, b, left); });
    part = clipAgainst(
        part, [=](const ShapePoint& p) { return p.x <= right; },
        [=](const ShapePoint& a, const ShapePoint& b) { return atX(a, b, right); });
    part = clipAgainst(
        part, [=](const ShapePoint& p) { return p.y >= low; },
        [=](const ShapePoint& a, const ShapePoint& b) { return atY(a, b, low); });
    part = clipAgainst(
        part, [=](const ShapePoint& p) { return p.y <= up; },
        [=](const ShapePoint& a, const ShapePoint& b) { return atY(a, b, up); });
    return part;
}

QPainterPath screenPath(const MapShape& polygon, const Camera& camera) {
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    const QRectF drawn = drawnMap(camera);
    if (!drawn.intersects(polygon.bounds))
        return path;
    const bool whole = drawn.contains(polygon.bounds);
    for (const ShapeRing& ring : polygon.shape.rings) {
        const QPolygonF pixels = screenRing(whole ? ring : clipRing(ring, drawn), camera);
        if (pixels.size() < FewestCorners)
            continue;
        path.addPolygon(pixels);
        path.closeSubpath();
    }
    return path;
}

const std::vector<QPainterPath>& ScreenPaths::of(const std::shared_ptr<const ShapeTable>& table, const Camera& camera) {
    if (camera != camera_) {
        paths_.clear();
        camera_ = camera;
    }
    const auto [entry, isNew] = paths_.try_emplace(table);
    if (isNew) {
        entry->second.reserve(table->shapes().size());
        for (const MapShape& shape : table->shapes())
            entry->second.push_back(screenPath(shape, camera));
    }
    return entry->second;
}
