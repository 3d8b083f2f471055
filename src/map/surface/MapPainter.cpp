#include "map/surface/MapPainter.h"

#include "map/surface/PictureTiles.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

// Interface pixels.
constexpr double PointRadius = 2.5;
/// An area of this size and above has its outline in full; below the outline fades into the area's own colour, or a
/// town of small areas would be nothing but outlines.
constexpr double FullOutlineSize = 28.0;
constexpr double FaintestOutline = 0.08;
/// Device pixels that an outline may reach beyond its polygon, snapping included.
constexpr double OutlineReach = 2.0;

constexpr const char* NoSymbol = "No Symbol";

QColor mixed(const QColor& a, const QColor& b, double shareOfB) {
    const auto part = [shareOfB](int from, int to) { return qRound(from + (to - from) * shareOfB); };
    return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

QColor outlineColour(const Symbol& symbol, const QColor& fill, const QSizeF& pixels, const MapStyle& style) {
    const double side = std::sqrt(pixels.width() * pixels.height());
    const double share = std::clamp(side / (FullOutlineSize * style.devicePixelRatio), FaintestOutline, 1.0);
    return mixed(fill, colourOf(symbol.SymbolPolygonBorderColor), share);
}

void paintPoints(QPainter& painter, const Layer& layer, const LayerContent& content, const Camera& camera,
                 const MapStyle& style) {
    const double radius = PointRadius * style.devicePixelRatio;
    painter.setPen(Qt::NoPen);
    for (const DrawnShape& drawn : content.shapes) {
        const Symbol& symbol = layer.symbols[drawn.symbol];
        if (equalText(symbol.SymbolPointSymbol, NoSymbol))
            continue;
        painter.setBrush(colourOf(symbol.SymbolPointColor));
        painter.drawEllipse(camera.mapToScreen(content.table->shapes()[drawn.shape].anchor), radius, radius);
    }
}

/// The polygons of a layer that can be seen in a part of the view, as positions in content.shapes.
std::vector<std::size_t> seenIn(const LayerContent& content, const QRectF& mapArea) {
    std::vector<std::size_t> seen;
    seen.reserve(content.shapes.size());
    for (std::size_t i = 0; i < content.shapes.size(); ++i) {
        if (content.table->shapes()[content.shapes[i].shape].bounds.intersects(mapArea))
            seen.push_back(i);
    }
    return seen;
}

/// Copies what both pictures show; the new one shows the old one's pixels moved by `shift`.
void copyMoved(const QImage& from, QImage& to, const QPoint& shift) {
    const QRect common = to.rect().intersected(from.rect().translated(shift));
    const auto bytes = [](int pixels) { return static_cast<std::size_t>(pixels) * sizeof(QRgb); };
    for (int y = common.top(); y <= common.bottom(); ++y) {
        std::memcpy(to.scanLine(y) + bytes(common.left()),
                    from.constScanLine(y - shift.y()) + bytes(common.left() - shift.x()), bytes(common.width()));
    }
}

} // namespace

QImage MapPainter::paint(const DrawnMap& map, const MapStyle& style) {
    frame_ = PixelFrame(map.camera);
    paths_.begin(frame_);
    QImage picture(frame_.size, QImage::Format_RGB32);
    picture.fill(style.sea);
    labels_.place(map, frame_, style);
    paintLayers(picture, picture.rect(), map, style);
    return picture;
}

QImage MapPainter::paintMoved(const QImage& picture, const Camera& from, const DrawnMap& map, const MapStyle& style) {
    const PixelFrame before(from);
    frame_ = PixelFrame(map.camera);
    const QPointF moved = before.origin - frame_.origin;
    if (picture.size() != frame_.size || before.pixelsPerUnit != frame_.pixelsPerUnit ||
        std::abs(moved.x()) >= frame_.size.width() || std::abs(moved.y()) >= frame_.size.height())
        return paint(map, style);
    paths_.begin(frame_);
    const QPoint shift = moved.toPoint();
    QImage result(frame_.size, QImage::Format_RGB32);
    copyMoved(picture, result, shift);
    labels_.place(map, frame_, style);
    for (const QRect& strip : QRegion(result.rect()).subtracted(result.rect().translated(shift))) {
        partOf(result, strip).fill(style.sea);
        paintLayers(result, strip, map, style);
    }
    return result;
}

void MapPainter::paintLayers(QImage& picture, const QRect& area, const DrawnMap& map, const MapStyle& style) {
    for (std::size_t i = 0; i < map.contents.size(); ++i) {
        if (const LayerContent* content = map.inPicture(i))
            paintShapes(picture, area, map.scene.layers[i], *content, map.camera, style);
    }
    for (std::size_t i = 0; i < map.contents.size(); ++i) { // no area covers the name of another
        if (map.inPicture(i))
            labels_.paint(picture, area, i);
    }
}

void MapPainter::paintShapes(QImage& picture, const QRect& area, const Layer& layer, const LayerContent& content,
                             const Camera& camera, const MapStyle& style) {
    if (layer.LayerInterpretation == CoverageKind::Polygons) {
        paintFills(picture, area, fillsOf(layer, content, area, style), paths_.offset());
        return;
    }
    QImage part = partOf(picture, area);
    QPainter painter(&part);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    paintPoints(painter, layer, content, camera, style);
}

std::vector<PathFill> MapPainter::fillsOf(const Layer& layer, const LayerContent& content, const QRectF& area,
                                          const MapStyle& style) {
    const QRectF reached = area.adjusted(-OutlineReach, -OutlineReach, OutlineReach, OutlineReach);
    const std::vector<std::size_t> seen = seenIn(content, frame_.mapRect(reached));
    std::vector<std::size_t> shapes;
    shapes.reserve(seen.size());
    for (std::size_t i : seen)
        shapes.push_back(content.shapes[i].shape);
    paths_.prepare(content.table, shapes);

    std::vector<PathFill> fills;
    fills.reserve(seen.size());
    for (std::size_t i : seen) {
        const DrawnShape& drawn = content.shapes[i];
        PathFill fill;
        fill.path = &paths_.path(*content.table, drawn.shape);
        if (fill.path->isEmpty())
            continue;
        const Symbol& symbol = layer.symbols[drawn.symbol];
        const QRectF box = frame_.viewRect(content.table->shapes()[drawn.shape].bounds);
        fill.box = box.adjusted(-OutlineReach, -OutlineReach, OutlineReach, OutlineReach);
        fill.fill = symbol.SymbolFilled ? colourOf(symbol.SymbolPolygonColor) : style.land;
        fill.outline = outlineColour(symbol, fill.fill, box.size(), style);
        fills.push_back(fill);
    }
    return fills;
}
