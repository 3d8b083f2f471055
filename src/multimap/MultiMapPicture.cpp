#include "multimap/MultiMapPicture.h"

#include "core/ModDeclarations.h"
#include "map/surface/MapKey.h"
#include "ui/cColours_CS.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double gap = 16, lineHeight = 24;
constexpr double barWidth = 20, barHeight = 14, barGap = 6;
constexpr int titlePixels = 18, textPixels = 13;
constexpr QColor ink{0x2A, 0x2A, 0x2A}, muted{0x5A, 0x5A, 0x5A}, line{0xD9, 0xD9, 0xD9}, barLine{0xAA, 0xAA, 0xAA};

QFont fontOf(const MultiMapPicture& picture, int pixels, bool bold) {
    QFont font(picture.fontFamily);
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

/// Of the key's side, with its margins.
double sideWidth(const MultiMapPicture& picture, const MapKey& key) {
    const double title = QFontMetricsF(fontOf(picture, titlePixels, true)).horizontalAdvance(picture.title);
    const double project = QFontMetricsF(fontOf(picture, textPixels, false)).horizontalAdvance(picture.project);
    return std::ceil(std::max({title, project, key.neededSize().width()}) + 2 * gap);
}

void paintSide(QPainter& painter, const MultiMapPicture& picture, const MapKey& key) {
    const auto write = [&](double top, const QString& text, const QFont& font, const QColor& colour) {
        painter.setFont(font);
        painter.setPen(colour);
        painter.drawText(QPointF(gap, top + QFontMetricsF(font).ascent()), text);
    };
    write(gap, picture.title, fontOf(picture, titlePixels, true), ink);
    write(gap + lineHeight, picture.project, fontOf(picture, textPixels, false), muted);
    painter.translate(gap, gap + 2.5 * lineHeight);
    key.paint(painter);
    painter.translate(-gap, -gap - 2.5 * lineHeight);
}

void paintBars(QPainter& painter, const MapOfPicture& map) {
    const cColours_CS colours = gColours ? *gColours : cColours_CS();
    const QFontMetricsF metrics(painter.font());
    QPointF at(map.map.left(), map.map.bottom() + barGap);
    for (const CallTypeBar& bar : map.bars) {
        painter.setPen(barLine);
        painter.setBrush(bar.band ? QColor::fromRgb(colours.MapColour(static_cast<int>(*bar.band)))
                                  : QColor(Qt::white));
        painter.drawRect(QRectF(at.x() + 0.5, at.y() + 0.5, barWidth, barHeight));
        at.rx() += barWidth + barGap;
        const QString name = QString::fromUtf8(bar.name.data(), static_cast<qsizetype>(bar.name.size()));
        painter.setPen(ink);
        painter.drawText(QPointF(at.x(), at.y() + barHeight - metrics.descent() / 2), name);
        at.rx() += metrics.horizontalAdvance(name) + 2 * barGap;
    }
}

void paintMap(QPainter& painter, const MapOfPicture& map) {
    painter.setPen(ink);
    painter.drawText(QPointF(map.map.left(), map.map.top() - barGap), map.period);
    painter.drawImage(map.map, map.image);
    painter.setPen(line);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(map.map.adjusted(0.5, 0.5, -0.5, -0.5));
    if (map.hasBars)
        paintBars(painter, map);
}

} // namespace

QImage drawMultiMapPicture(const MultiMapPicture& picture, const MapKey& key) {
    const double side = sideWidth(picture, key);
    const double height =
        std::max(picture.view.height(), 2 * gap + 2.5 * lineHeight + std::ceil(key.neededSize().height()));
    const QSizeF size(side + picture.view.width(), height);
    QImage image((size * picture.devicePixelRatio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(picture.devicePixelRatio);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    paintSide(painter, picture, key);
    painter.setClipRect(QRectF(QPointF(side, 0), picture.view));
    painter.translate(side, 0);
    painter.setFont(fontOf(picture, textPixels, false));
    for (const MapOfPicture& map : picture.maps)
        paintMap(painter, map);
    return image;
}
