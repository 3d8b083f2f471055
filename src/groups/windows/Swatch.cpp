#include "groups/windows/Swatch.h"

#include "ui/Contrast.h"
#include "ui/Skin.h"

#include <QGuiApplication>
#include <QPainter>

QPixmap swatch(const QColor& colour, QSize size) {
    const double scale = qGuiApp->devicePixelRatio();
    QPixmap picture(size * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(toColor(skinColours().Grey(4)));
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(QPointF(), QSizeF(size)).adjusted(0.5, 0.5, -0.5, -0.5), 2.5, 2.5);
    return picture;
}

QColor readableShade(QColor colour) {
    while (contrastRatio(colour, Qt::white) < leastTextContrast)
        colour = colour.darker(108);
    return colour;
}
