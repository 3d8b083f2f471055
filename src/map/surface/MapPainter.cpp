#include "map/surface/MapPainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>

#include <algorithm>

namespace {

/// Interface pixels.
constexpr double OutlineWidth = 0.8;
constexpr double HaloWidth = 3.0;
constexpr double PointRadius = 2.5;
constexpr double PixelsPerPoint = 96.0 / 72.0;

constexpr const char* NoSymbol = "No Symbol";

QPen outlinePen(const Symbol& symbol, const MapStyle& style) {
    QPen pen(colourOf(symbol.SymbolPolygonBorderColor), OutlineWidth * style.devicePixelRatio);
    pen.setCosmetic(true);
    pen.setJoinStyle(Qt::RoundJoin);
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

/// Text with a light rim, so that it reads on every colour below it. `box` is the text's own.
void paintLabel(QPainter& painter, const QString& text, const QRectF& box, const QFont& font, const Symbol& symbol,
                const MapStyle& style) {
    QPainterPath glyphs;
    glyphs.addText(box.left(), box.top() + QFontMetricsF(font).ascent(), font, text);
    painter.strokePath(
        glyphs, QPen(style.halo, HaloWidth * style.devicePixelRatio, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(glyphs, colourOf(symbol.SymbolLabelColor));
}

void paintLabels(QPainter& painter, const Layer& layer, const LayerContent& content, const Camera& camera,
                 const MapStyle& style, LabelPlacement& placement) {
    std::vector<QFont> fonts;
    for (const Symbol& symbol : layer.symbols)
        fonts.push_back(labelFont(symbol.SymbolLabelFont, style.devicePixelRatio));
    for (const DrawnShape& drawn : content.shapes) {
        const Symbol& symbol = layer.symbols[drawn.symbol];
        if (!symbol.SymbolEnableLabels || drawn.label.empty())
            continue;
        const QString text = QString::fromStdString(drawn.label);
        const QFontMetricsF metrics(fonts[drawn.symbol]);
        const QPointF anchor = camera.mapToScreen(content.table->shapes()[drawn.shape].anchor);
        const auto box =
            placement.place(QSizeF(metrics.horizontalAdvance(text), metrics.height()), anchor,
                            symbol.SymbolLabelJustification, symbol.SymbolLabelBaseline, layer.LayerCheckForOverlap);
        if (box)
            paintLabel(painter, text, *box, fonts[drawn.symbol], symbol, style);
    }
}

} // namespace

QColor colourOf(MapColourCode code) {
    return QColor::fromRgb(swapRedAndBlue(code));
}

QFont labelFont(const LabelFont& font, double devicePixelRatio) {
    // The second name of a pair has the widths of the first and is what free systems have in its place.
    QStringList families{QString::fromStdString(font.family)};
    if (equalText(font.family, "Calibri"))
        families << "Carlito";
    families << "Arial"
             << "Liberation Sans"
             << "DejaVu Sans";
    QFont result;
    result.setFamilies(families);
    result.setPixelSize(std::max(1, qRound(font.size * PixelsPerPoint * devicePixelRatio)));
    return result;
}

QImage MapPainter::paint(const Scene& scene, const std::vector<LayerContent>& contents, const Camera& camera,
                         const MapStyle& style) {
    QImage picture(camera.pixelSize(), QImage::Format_RGB32);
    picture.fill(style.sea);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    LabelPlacement placement(QRectF(QPointF(0, 0), QSizeF(camera.pixelSize())), 2.0 * style.devicePixelRatio);
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
        painter.setBrush(symbol.SymbolFilled ? colourOf(symbol.SymbolPolygonColor) : style.land);
        painter.setPen(outlinePen(symbol, style));
        painter.drawPath(path);
    }
}
