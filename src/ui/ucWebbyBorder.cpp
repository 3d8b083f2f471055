#include "ui/ucWebbyBorder.h"

#include "ui/Skin.h"

#include <QPainter>

namespace {

constexpr double cornerDepth = 8.0;

} // namespace

ucWebbyBorder::ucWebbyBorder(QWidget* parent) : QWidget(parent) {}

void ucWebbyBorder::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(toColor(skinColours().Grey(3)), 1));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerDepth, cornerDepth);
}
