#include "map/surface/LabelPainter.h"

#include "map/surface/PictureTiles.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr double LabelGap = 2.0; ///< interface pixels between two labels
constexpr std::size_t MostFaces = 64;

} // namespace

void LabelPainter::place(const DrawnMap& map, const PixelFrame& frame, const MapStyle& style) {
    frame_ = frame;
    layers_.assign(map.contents.size(), {});
    if (faces_.size() > MostFaces)
        faces_.clear();
    LabelPlacement placement(LabelGap * style.devicePixelRatio);
    for (std::size_t i = 0; i < map.contents.size(); ++i) {
        if (const LayerContent* content = map.inPicture(i))
            placeLayer(map.scene.layers[i], *content, style, placement, layers_[i]);
    }
}

void LabelPainter::placeLayer(const Layer& layer, const LayerContent& content, const MapStyle& style,
                              LabelPlacement& placement, std::vector<Label>& labels) {
    std::vector<LabelFace*> faces; // beside the symbols; null: has no labels
    for (const Symbol& symbol : layer.symbols)
        faces.push_back(symbol.SymbolEnableLabels ? &faceOf(symbol, style) : nullptr);
    for (const DrawnShape& drawn : content.shapes) {
        LabelFace* face = faces[drawn.symbol];
        if (face == nullptr || drawn.label.empty())
            continue;
        const Symbol& symbol = layer.symbols[drawn.symbol];
        const QPointF anchor = content.table->shapes()[drawn.shape].anchor * frame_.pixelsPerUnit;
        if (!std::isfinite(anchor.x()) || !std::isfinite(anchor.y()))
            continue;
        const QString text = QString::fromStdString(drawn.label);
        const QSizeF size = face->sizeOf(text);
        const auto box = placement.place(size, QPointF(anchor.x(), -anchor.y()), symbol.SymbolLabelJustification,
                                         symbol.SymbolLabelBaseline, layer.LayerCheckForOverlap);
        if (box)
            labels.push_back({box->topLeft().toPoint(), size, face, text});
    }
}

LabelFace& LabelPainter::faceOf(const Symbol& symbol, const MapStyle& style) {
    LabelFont font = symbol.SymbolLabelFont;
    font.size *= style.labelScale;
    const std::string key = font.family + '\n' + shortestText(font.size) + '\n' +
                            std::to_string(symbol.SymbolLabelColor) + '\n' + std::to_string(style.halo.rgba()) + '\n' +
                            shortestText(style.devicePixelRatio);
    return faces_.try_emplace(key, font, colourOf(symbol.SymbolLabelColor), style.halo, style.devicePixelRatio)
        .first->second;
}

void LabelPainter::paint(QImage& picture, const QRect& area, std::size_t layer) {
    if (layers_[layer].empty())
        return;
    QImage part = partOf(picture, area);
    QPainter painter(&part);
    const QPoint origin = frame_.origin.toPoint() + area.topLeft();
    for (const Label& label : layers_[layer]) {
        const int rim = label.face->rim();
        const QPoint place = label.place - origin;
        const QRect reached(place, label.size.toSize());
        if (!part.rect().intersects(reached.adjusted(-rim, -rim, rim + 1, rim + 1)))
            continue;
        painter.drawImage(place - QPoint(rim, rim), label.face->image(label.text));
    }
}

std::vector<QRectF> LabelPainter::boxes(std::size_t layer) const {
    std::vector<QRectF> boxes;
    for (const Label& label : layers_[layer])
        boxes.emplace_back(QPointF(label.place) - frame_.origin, label.size);
    return boxes;
}
