#include "ui/AppIcon.h"

#include "ui/Globe.h"
#include "ui/PaintedIcon.h"

#include <QWidget>

QIcon appIcon() {
    return paintedIcon([](QPainter& painter, const QRectF& box) { paintGlobe(painter, box, GlobeStyle::Full); });
}

void brandWindow(QWidget& window, bool ownerToo) {
    window.setWindowIcon(appIcon());
    QWidget* owner = window.parentWidget();
    if (ownerToo && owner)
        owner->window()->setWindowIcon(appIcon());
}
