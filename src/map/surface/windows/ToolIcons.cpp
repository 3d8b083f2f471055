#include "map/surface/windows/ToolIcons.h"

#include "ui/Skin.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <algorithm>

namespace {

/// Signs are drawn on a square of this many units.
constexpr double Side = 24.0;
constexpr double LineWidth = 1.8;

/// Lines of a sign, and what of it is solid.
struct Sign {
    QPainterPath lines;
    QPainterPath solid;
};

void addLine(QPainterPath& path, std::initializer_list<QPointF> points) {
    path.moveTo(*points.begin());
    for (const QPointF& point : points)
        path.lineTo(point);
}

void addDot(QPainterPath& path, double x, double y, double radius = 1.9) {
    path.addEllipse(QPointF(x, y), radius, radius);
}

Sign wholeMap() {
    Sign sign;
    for (const auto& [x, y] :
         {std::pair(1.0, 1.0), std::pair(-1.0, 1.0), std::pair(1.0, -1.0), std::pair(-1.0, -1.0)}) {
        const QPointF corner(12 + 8.5 * x, 12 + 8.5 * y);
        addLine(sign.lines, {corner - QPointF(5.5 * x, 0), corner, corner - QPointF(0, 5.5 * y)});
        addLine(sign.lines, {QPointF(12 + 2.5 * x, 12 + 2.5 * y), corner});
    }
    return sign;
}

Sign hand() {
    Sign sign;
    addLine(sign.lines, {{12, 3.5}, {12, 20.5}});
    addLine(sign.lines, {{3.5, 12}, {20.5, 12}});
    addLine(sign.lines, {{9.2, 6.2}, {12, 3.4}, {14.8, 6.2}});
    addLine(sign.lines, {{9.2, 17.8}, {12, 20.6}, {14.8, 17.8}});
    addLine(sign.lines, {{6.2, 9.2}, {3.4, 12}, {6.2, 14.8}});
    addLine(sign.lines, {{17.8, 9.2}, {20.6, 12}, {17.8, 14.8}});
    return sign;
}

Sign lens(bool in) {
    Sign sign;
    sign.lines.addEllipse(QPointF(10, 10), 6.6, 6.6);
    addLine(sign.lines, {{14.9, 14.9}, {20.5, 20.5}});
    addLine(sign.lines, {{7, 10}, {13, 10}});
    if (in)
        addLine(sign.lines, {{10, 7}, {10, 13}});
    return sign;
}

Sign ruler() {
    Sign sign;
    addLine(sign.lines, {{3, 16}, {16, 3}, {21, 8}, {8, 21}, {3, 16}});
    for (const double step : {0.25, 0.5, 0.75}) {
        const QPointF start(3 + 13 * step, 16 - 13 * step);
        addLine(sign.lines, {start, start + QPointF(2.2, 2.2)});
    }
    return sign;
}

Sign information() {
    Sign sign;
    sign.lines.addEllipse(QPointF(12, 12), 8.8, 8.8);
    addLine(sign.lines, {{12, 11}, {12, 16.6}});
    addDot(sign.solid, 12, 7.6, 1.3);
    return sign;
}

Sign lasso() {
    Sign sign;
    sign.lines.moveTo(6, 18);
    sign.lines.cubicTo(1, 12, 4, 4, 12, 4);
    sign.lines.cubicTo(20, 4, 23, 10, 18.5, 14);
    sign.lines.cubicTo(15.5, 17, 10.5, 13.5, 6, 18);
    addDot(sign.solid, 6, 18, 2.4);
    return sign;
}

Sign circleQuery() {
    Sign sign;
    sign.lines.addEllipse(QPointF(12, 12), 8.8, 8.8);
    addLine(sign.lines, {{12, 12}, {18.2, 5.8}});
    addDot(sign.solid, 12, 12);
    return sign;
}

Sign point() {
    Sign sign;
    sign.lines.moveTo(12, 21);
    sign.lines.cubicTo(7, 15, 5.2, 12.5, 5.2, 9.5);
    sign.lines.arcTo(QRectF(5.2, 2.7, 13.6, 13.6), 180, -180);
    sign.lines.cubicTo(18.8, 12.5, 17, 15, 12, 21);
    addDot(sign.solid, 12, 9.5, 2.3);
    return sign;
}

Sign corners(bool closed) {
    Sign sign;
    const std::initializer_list<QPointF> open{{4, 18}, {9, 6}, {15, 14}, {20, 5}};
    const std::initializer_list<QPointF> ring{{4.5, 9}, {13, 4}, {20, 10}, {16.5, 19.5}, {6, 18.5}, {4.5, 9}};
    addLine(sign.lines, closed ? ring : open);
    for (const QPointF& corner : closed ? ring : open)
        addDot(sign.solid, corner.x(), corner.y());
    return sign;
}

Sign circle() {
    Sign sign;
    sign.lines.addEllipse(QPointF(12, 12), 8.3, 8.3);
    addDot(sign.solid, 20.3, 12);
    return sign;
}

Sign hideToolBar() {
    Sign sign;
    sign.lines.addRoundedRect(QRectF(3, 4, 18, 16), 2.5, 2.5);
    addLine(sign.lines, {{3, 9}, {21, 9}});
    addLine(sign.lines, {{9, 16.2}, {12, 13.2}, {15, 16.2}});
    return sign;
}

Sign goBack() {
    Sign sign;
    addLine(sign.lines, {{8.5, 4.5}, {4, 9}, {8.5, 13.5}});
    sign.lines.moveTo(4, 9);
    sign.lines.lineTo(14.5, 9);
    sign.lines.cubicTo(22.5, 9, 22.5, 19.5, 14.5, 19.5);
    sign.lines.lineTo(9, 19.5);
    return sign;
}

Sign signOf(MapTool tool) {
    switch (tool) {
    case MapTool::ZoomToExtent:
        return wholeMap();
    case MapTool::Pan:
        return hand();
    case MapTool::ZoomIn:
        return lens(true);
    case MapTool::ZoomOut:
        return lens(false);
    case MapTool::Measure:
        return ruler();
    case MapTool::Information:
        return information();
    case MapTool::PolygonQuery:
        return lasso();
    case MapTool::CircleQuery:
        return circleQuery();
    case MapTool::DrawPoint:
        return point();
    case MapTool::DrawPolyline:
        return corners(false);
    case MapTool::DrawPolygon:
        return corners(true);
    case MapTool::DrawCircle:
        return circle();
    case MapTool::HideToolBar:
        return hideToolBar();
    case MapTool::GoBack:
        return goBack();
    }
    return {};
}

class ToolIconEngine : public QIconEngine {
public:
    explicit ToolIconEngine(MapTool tool) : tool_(tool) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const cColours_CS colours = skinColours();
        const Colour colour = mode == QIcon::Disabled ? colours.Grey(4)
                              : state == QIcon::On    ? colours.Indigo(5)
                                                      : colours.Grey(6);
        paintToolSign(*painter, rect, tool_, toColor(colour));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new ToolIconEngine(tool_); }

private:
    MapTool tool_;
};

} // namespace

QIcon toolIcon(MapTool tool) {
    return QIcon(new ToolIconEngine(tool));
}

void paintToolSign(QPainter& painter, const QRectF& box, MapTool tool, const QColor& colour) {
    const double side = std::min(box.width(), box.height());
    const Sign sign = signOf(tool);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(box.center() - QPointF(side, side) / 2.0);
    painter.scale(side / Side, side / Side);
    painter.strokePath(sign.lines, QPen(colour, LineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(sign.solid, colour);
    painter.restore();
}
