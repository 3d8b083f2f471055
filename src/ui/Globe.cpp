#include "ui/Globe.h"

#include "ui/Skin.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

constexpr double tiltDegrees = 18.0; ///< the north pole leans towards the viewer
constexpr double pi = 3.14159265358979323846;

struct GlobeColours {
    QColor light, dark, net, pin, hole;
};

GlobeColours coloursOf(GlobeStyle style) {
    const cColours_CS skin = skinColours();
    if (style == GlobeStyle::Pale)
        return {toColor(skin.Indigo(1)).lighter(103), toColor(skin.Indigo(1)), toColor(skin.Indigo(2)),
                toColor(skin.Coral(3)), Qt::white};
    QColor net(Qt::white);
    net.setAlpha(150);
    return {toColor(skin.Indigo(4)), toColor(skin.Indigo(6)), net, toColor(skin.Coral(4)), Qt::white};
}

/// A line on the sphere, from -1 to 1 in each direction, y down; the far side is left out.
class NetLine {
public:
    void add(double latitude, double longitude) {
        const double tilt = tiltDegrees * pi / 180;
        const double x = std::cos(latitude) * std::sin(longitude);
        const double up = std::sin(latitude);
        const double near = std::cos(latitude) * std::cos(longitude);
        const double y = up * std::cos(tilt) - near * std::sin(tilt);
        const bool visible = near * std::cos(tilt) + up * std::sin(tilt) >= 0;
        if (visible && drawing_)
            path_.lineTo(x, -y);
        else if (visible)
            path_.moveTo(x, -y);
        drawing_ = visible;
    }
    const QPainterPath& path() const { return path_; }

private:
    QPainterPath path_;
    bool drawing_ = false;
};

QPainterPath netOf(int meridians, int parallels) {
    constexpr int steps = 180;
    QPainterPath net;
    for (int m = 0; m < meridians; ++m) {
        NetLine line;
        for (int i = 0; i <= steps; ++i)
            line.add(pi * i / steps - pi / 2, pi * (m + 0.5) / meridians - pi / 2);
        net.addPath(line.path());
    }
    for (int p = 1; p <= parallels; ++p) {
        NetLine line;
        for (int i = 0; i <= steps; ++i)
            line.add(pi * p / (parallels + 1) - pi / 2, 2 * pi * i / steps - pi);
        net.addPath(line.path());
    }
    return net;
}

/// A pin of height 1 whose tip is at (0, 0).
QPainterPath pinOutline() {
    QPainterPath pin;
    pin.moveTo(0, 0);
    pin.cubicTo(-0.10, -0.28, -0.36, -0.42, -0.36, -0.66);
    pin.cubicTo(-0.36, -0.86, -0.20, -1.0, 0, -1.0);
    pin.cubicTo(0.20, -1.0, 0.36, -0.86, 0.36, -0.66);
    pin.cubicTo(0.36, -0.42, 0.10, -0.28, 0, 0);
    return pin;
}

void paintPin(QPainter& painter, const GlobeColours& colours, bool small) {
    painter.save();
    painter.translate(0.16, 0.22);
    painter.scale(small ? 1.25 : 1.0, small ? 1.25 : 1.0);
    painter.setPen(QPen(colours.hole, small ? 0.14 : 0.06));
    painter.setBrush(colours.pin);
    painter.drawPath(pinOutline());
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.hole);
    painter.drawEllipse(QPointF(0, -0.66), 0.14, 0.14);
    painter.restore();
}

} // namespace

void paintGlobe(QPainter& painter, const QRectF& box, GlobeStyle style) {
    const double side = std::min(box.width(), box.height());
    const bool small = side < 24;
    const GlobeColours colours = coloursOf(style);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(box.center());
    painter.scale(side / 2.1, side / 2.1); // from here on the globe's radius is 1

    QRadialGradient light(QPointF(-0.35, -0.45), 1.6);
    light.setColorAt(0, colours.light);
    light.setColorAt(1, colours.dark);
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawEllipse(QPointF(0, 0), 1.0, 1.0);

    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colours.net, small ? 0.12 : 0.035));
    QPainterPath disc;
    disc.addEllipse(QPointF(0, 0), 1.0, 1.0);
    painter.save();
    painter.setClipPath(disc);
    painter.drawPath(small ? netOf(2, 1) : netOf(6, 5));
    painter.restore();
    paintPin(painter, colours, small);
    painter.restore();
}
