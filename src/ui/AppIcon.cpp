#include "ui/AppIcon.h"

#include "ui/Globe.h"

#include <QPainter>
#include <QPixmap>

QIcon appIcon() {
    QIcon icon;
    for (const int side : {16, 20, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paintGlobe(painter, QRectF(0, 0, side, side), GlobeStyle::Full);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}
