#include "map/surface/MapPainter.h"

#include "map/surface/LabelPainter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// Device pixels. A pen wider than one leaves the painter's quick way and makes a map of fine screens take a second and
/// more.
constexpr double OutlineWidth = 1.0;
// Interface pixels.
constexpr double PointRadius = 2.5;
constexpr double LabelGap = 2.0;
/// An area of this size and above has its outline in full; below the outline fades into the area's own colour, or a
/// town of small areas would be nothing but outlines.
constexpr double FullOutlineSize = 28.0;
constexpr double FaintestOutline = 0.08;

constexpr const char* NoSymbol = "No Symbol";

QColor mixed(const QColor& a, const QColor& b, double shareOfB) {
    const auto part = [shareOfB](int from, int to) { return qRound(from + (to - from) * shareOfB); };
    return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

QPen outlinePen(const Symbol& symbol, const QColor& fill, double pixelSize, const MapStyle& style) {
    const double share = std::clamp(pixelSize / (FullOutlineSize * style.devicePixelRatio), FaintestOutline, 1.0);
    QPen pen(mixed(fill, colourOf(symbol.SymbolPolygonBorderColor), share), OutlineWidth);
    pen.setCosmetic(true);
    return pen;
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

} // namespace

QImage MapPainter::paint(const Scene& scene, const std::vector<LayerContent>& contents, const Camera& camera,
                         const MapStyle& style) {
    QImage picture(camera.pixelSize(), QImage::Format_RGB32);
    picture.fill(style.sea);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    LabelPlacement placement(QRectF(QPointF(0, 0), QSizeF(camera.pixelSize())), LabelGap * style.devicePixelRatio);
    for (std::size_t i = 0; i < scene.layers.size() && i < contents.size(); ++i) {
        const Layer& layer = scene.layers[i];
        if (!contents[i].table || !isDrawnAt(layer, camera.scale()))
            continue;
        if (layer.LayerInterpretation == CoverageKind::Polygons)
            paintPolygons(painter, layer, contents[i], camera, style);
        else
            paintPoints(painter, layer, contents[i], camera, style);
        paintLabels(painter, layer, contents[i], camera, style, placement);
    }
    return picture;
}

void MapPainter::paintPolygons(QPainter& painter, const Layer& layer, const LayerContent& content, const Camera& camera,
                               const MapStyle& style) {
    const std::vector<QPainterPath>& paths = paths_.of(content.table, camera);
    for (const DrawnShape& drawn : content.shapes) {
        const QPainterPath& path = paths[drawn.shape];
        if (path.isEmpty())
            continue;
        const Symbol& symbol = layer.symbols[drawn.symbol];
        const QColor fill = symbol.SymbolFilled ? colourOf(symbol.SymbolPolygonColor) : style.land;
        const QRectF& bounds = content.table->shapes()[drawn.shape].bounds;
        const double pixelSize = std::sqrt(bounds.width() * bounds.height()) / camera.unitsPerPixel();
        painter.setBrush(fill);
        painter.setPen(outlinePen(symbol, fill, pixelSize, style));
        painter.drawPath(path);
    }
}
