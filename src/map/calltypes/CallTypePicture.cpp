#include "map/calltypes/CallTypePicture.h"

#include "map/calltypes/PiePicture.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {

constexpr double edge = 16, padding = 10, gap = 8, radius = 8;
constexpr double rowHeight = 24, barWidth = 36, barHeight = 16;
constexpr double pieWidth = 320, pieHeight = 176;
constexpr int textPixels = 13;
constexpr QColor line{0xD9, 0xD9, 0xD9}, barLine{0xAA, 0xAA, 0xAA}, ink{0x2A, 0x2A, 0x2A};

QString wordsOf(const CallTypeBar& bar, bool withGroups) {
    const QString name = QString::fromUtf8(bar.name.data(), static_cast<qsizetype>(bar.name.size()));
    return withGroups ? name + QStringLiteral(" · ") + QString::fromStdString(bar.groupLabel) : name;
}

void paintBars(QPainter& painter, const QRectF& map, const CallTypePicture& picture) {
    QFont font(picture.fontFamily);
    font.setPixelSize(textPixels);
    painter.setFont(font);
    double textWidth = 0;
    for (const CallTypeBar& bar : picture.bars)
        textWidth = std::max(textWidth, QFontMetricsF(font).horizontalAdvance(wordsOf(bar, picture.withGroups)));
    const QSizeF size(2 * padding + barWidth + gap + textWidth + 1, 2 * padding + 4 * rowHeight);
    const QRectF card(QPointF(map.left() + edge, map.bottom() - edge - size.height()), size);
    if (!map.contains(card))
        return;
    paintCallTypeCard(painter, card);
    QRectF row(card.left() + padding, card.top() + padding, card.width() - 2 * padding, rowHeight);
    for (const CallTypeBar& bar : picture.bars) {
        painter.setPen(barLine);
        painter.setBrush(bar.band && *bar.band < picture.bandColours.size() ? picture.bandColours[*bar.band]
                                                                            : QColor(Qt::white));
        painter.drawRect(QRectF(row.left(), row.center().y() - barHeight / 2, barWidth, barHeight));
        painter.setPen(ink);
        painter.drawText(row.adjusted(barWidth + gap, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                         wordsOf(bar, picture.withGroups));
        row.translate(0, rowHeight);
    }
}

void paintSplit(QPainter& painter, const QRectF& map, const CallTypePicture& picture) {
    const QRectF card(map.right() - edge - pieWidth, map.top() + edge, pieWidth, pieHeight);
    if (!picture.split || !map.contains(card))
        return;
    paintCallTypeCard(painter, card);
    PiePicture(*picture.split, card, picture.fontFamily).paint(painter);
}

} // namespace

void paintCallTypeCard(QPainter& painter, const QRectF& card) {
    painter.setPen(line);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(card, radius, radius);
}

void paintCallTypes(QPainter& painter, const QRectF& map, const CallTypePicture& picture) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    paintBars(painter, map, picture);
    paintSplit(painter, map, picture);
    painter.restore();
}
