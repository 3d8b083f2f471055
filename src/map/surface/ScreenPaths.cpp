#include "map/surface/ScreenPaths.h"

#include "map/surface/InParallel.h"

#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace {

/// How far the view may move before the paths are made anew, and how far outside of it polygons are kept: enough for a
/// drag across the screen. The margin keeps an outline along the clipping box out of sight.
constexpr double Reach = 2048.0;
constexpr double ClipMargin = 16.0;
constexpr int FewestCorners = 3;
/// That one thread makes before it looks for more.
constexpr std::size_t PathsAPiece = 64;

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

double snapped(double pixel) {
    return std::round(pixel * 2.0) / 2.0;
}

/// A ring as pixels counted from `base`.
QPolygonF pixelRing(const ShapeRing& ring, double pixelsPerUnit, const QPointF& base) {
    QPolygonF pixels;
    pixels.reserve(static_cast<qsizetype>(ring.size()));
    for (const ShapePoint& point : ring) {
        const QPointF pixel(snapped(point.x * pixelsPerUnit) - base.x(), snapped(-point.y * pixelsPerUnit) - base.y());
        if (pixels.isEmpty() || pixels.last() != pixel)
            pixels.append(pixel);
    }
    return pixels;
}

/// Cut to a box of the map.
QPainterPath pixelPath(const MapShape& polygon, double pixelsPerUnit, const QPointF& base, const QRectF& box) {
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    if (!box.intersects(polygon.bounds))
        return path;
    const bool whole = box.contains(polygon.bounds);
    for (const ShapeRing& ring : polygon.shape.rings) {
        const QPolygonF pixels = pixelRing(whole ? ring : clipRing(ring, box), pixelsPerUnit, base);
        if (pixels.size() < FewestCorners)
            continue;
        path.addPolygon(pixels);
        path.closeSubpath();
    }
    return path;
}

QRectF widened(const QRectF& rectangle, double by) {
    return rectangle.adjusted(-by, -by, by, by);
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

PixelFrame::PixelFrame(const Camera& camera)
    : pixelsPerUnit(1.0 / camera.unitsPerPixel()),
      origin(std::round(camera.center().x() * pixelsPerUnit - camera.pixelSize().width() / 2.0),
             std::round(-camera.center().y() * pixelsPerUnit - camera.pixelSize().height() / 2.0)),
      size(camera.pixelSize()) {}

QRectF PixelFrame::mapRect(const QRectF& viewPixels) const {
    const QPointF topLeft = (viewPixels.topLeft() + origin) / pixelsPerUnit;
    const QSizeF extent = viewPixels.size() / pixelsPerUnit;
    return {topLeft.x(), -topLeft.y() - extent.height(), extent.width(), extent.height()};
}

QRectF PixelFrame::viewRect(const QRectF& mapBox) const {
    const QPointF topLeft(mapBox.left() * pixelsPerUnit, -mapBox.bottom() * pixelsPerUnit);
    return {topLeft - origin, mapBox.size() * pixelsPerUnit};
}

void ScreenPaths::begin(const PixelFrame& frame) {
    const QPointF moved = frame.origin - base_;
    if (frame.pixelsPerUnit != frame_.pixelsPerUnit || frame.size != frame_.size || std::abs(moved.x()) > Reach ||
        std::abs(moved.y()) > Reach) {
        tables_.clear();
        base_ = frame.origin;
    }
    frame_ = frame;
}

void ScreenPaths::prepare(const std::shared_ptr<const ShapeTable>& table, const std::vector<std::size_t>& shapes) {
    Table& kept = tables_[table.get()];
    if (!kept.shapes) {
        kept.shapes = table;
        kept.paths.resize(table->shapes().size());
        kept.made.resize(table->shapes().size());
    }
    std::vector<std::size_t> missing;
    for (std::size_t shape : shapes) {
        if (!kept.made[shape]) {
            kept.made[shape] = true;
            missing.push_back(shape);
        }
    }
    const std::size_t pieces = (missing.size() + PathsAPiece - 1) / PathsAPiece;
    inParallel(pieces, [&](std::size_t piece) {
        const std::size_t end = std::min(missing.size(), (piece + 1) * PathsAPiece);
        for (std::size_t i = piece * PathsAPiece; i < end; ++i)
            kept.paths[missing[i]] = make(table->shapes()[missing[i]]);
    });
}

const QPainterPath& ScreenPaths::path(const ShapeTable& table, std::size_t shape) const {
    return tables_.at(&table).paths[shape];
}

QPainterPath ScreenPaths::make(const MapShape& polygon) const {
    const QRectF reach = widened(QRectF(base_ - frame_.origin, QSizeF(frame_.size)), Reach + ClipMargin);
    return pixelPath(polygon, frame_.pixelsPerUnit, base_, frame_.mapRect(reach));
}

QPainterPath screenPath(const MapShape& polygon, const Camera& camera) {
    const PixelFrame frame(camera);
    const QRectF drawn = widened(QRectF(QPointF(0, 0), QSizeF(frame.size)), ClipMargin);
    return pixelPath(polygon, frame.pixelsPerUnit, frame.origin, frame.mapRect(drawn));
}
