#include "map/surface/LabelPainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr double PixelsPerPoint = 96.0 / 72.0;
constexpr double MostPoints = 200.0;
constexpr double HaloReach = 1.4; ///< interface pixels by which the rim stands out

/// The text itself is far cheaper to draw nine times than its outline is to widen once.
constexpr std::array HaloDirections{QPointF(-0.7, -0.7), QPointF(0, -1),     QPointF(0.7, -0.7), QPointF(-1, 0),
                                    QPointF(1, 0),       QPointF(-0.7, 0.7), QPointF(0, 1),      QPointF(0.7, 0.7)};

void paintLabel(QPainter& painter, const QString& text, const QPointF& baseline, const QColor& colour,
                const MapStyle& style) {
    painter.setPen(style.halo);
    for (const QPointF& direction : HaloDirections)
        painter.drawText(baseline + direction * (HaloReach * style.devicePixelRatio), text);
    painter.setPen(colour);
    painter.drawText(baseline, text);
}

} // namespace

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
    result.setPixelSize(
        std::max(1, qRound(std::clamp(font.size, 1.0, MostPoints) * PixelsPerPoint * devicePixelRatio)));
    return result;
}

void paintLabels(QPainter& painter, const Layer& layer, const LayerContent& content, const Camera& camera,
                 const MapStyle& style, LabelPlacement& placement) {
    std::vector<QFont> fonts;
    std::vector<QFontMetricsF> metrics;
    for (const Symbol& symbol : layer.symbols) {
        fonts.push_back(labelFont(symbol.SymbolLabelFont, style.devicePixelRatio));
        metrics.emplace_back(fonts.back());
    }
    for (const DrawnShape& drawn : content.shapes) {
        const Symbol& symbol = layer.symbols[drawn.symbol];
        if (!symbol.SymbolEnableLabels || drawn.label.empty())
            continue;
        const QPointF anchor = camera.mapToScreen(content.table->shapes()[drawn.shape].anchor);
        if (!placement.isInView(anchor))
            continue;
        const QString text = QString::fromStdString(drawn.label);
        const QFontMetricsF& size = metrics[drawn.symbol];
        const auto box =
            placement.place(QSizeF(size.horizontalAdvance(text), size.height()), anchor,
                            symbol.SymbolLabelJustification, symbol.SymbolLabelBaseline, layer.LayerCheckForOverlap);
        if (!box)
            continue;
        painter.setFont(fonts[drawn.symbol]);
        paintLabel(painter, text, box->topLeft() + QPointF(0.0, size.ascent()), colourOf(symbol.SymbolLabelColor),
                   style);
    }
}
