#include "ui/Sign.h"

#include "ui/Skin.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

void paintCross(QPainter& painter, const QPointF& middle, double side) {
    const double arm = side * 0.19;
    painter.setPen(QPen(Qt::white, side * 0.11, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(middle + QPointF(-arm, -arm), middle + QPointF(arm, arm));
    painter.drawLine(middle + QPointF(-arm, arm), middle + QPointF(arm, -arm));
}

/// As an outline, so that it stands in the middle of the disc at every size.
void paintLetter(QPainter& painter, const QPointF& middle, double side, const QString& letter) {
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(100);
    QPainterPath path;
    path.addText(0, 0, font, letter);
    const QRectF bounds = path.boundingRect();
    painter.translate(middle);
    painter.scale(side * 0.55 / bounds.height(), side * 0.55 / bounds.height());
    painter.translate(-bounds.center());
    painter.fillPath(path, Qt::white);
}

} // namespace

void paintSign(QPainter& painter, const QRectF& box, Sign sign) {
    if (sign == Sign::None)
        return;
    const cColours_CS colours = skinColours();
    const bool bad = sign == Sign::Warning || sign == Sign::Error;
    const double side = std::min(box.width(), box.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toColor(bad ? colours.Coral(6) : colours.Indigo(5)));
    painter.drawEllipse(box.center(), side / 2, side / 2);
    if (sign == Sign::Error)
        paintCross(painter, box.center(), side);
    else
        paintLetter(painter, box.center(), side,
                    QString(QLatin1Char(sign == Sign::Warning    ? '!'
                                        : sign == Sign::Question ? '?'
                                                                 : 'i')));
    painter.restore();
}
