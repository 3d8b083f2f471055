#include "map/surface/windows/CanvasOverlay.h"

#include "map/surface/AreaText.h"
#include "map/surface/MapSurface.h"
#include "map/surface/windows/MapPointer.h"
#include "ui/Skin.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

// Interface pixels.
constexpr double HoverWidth = 2.0;
constexpr double HoverShare = 12.0; ///< of a small area's side that its outline may be wide
constexpr double SketchWidth = 2.0;
constexpr double CornerRadius = 3.5;
constexpr double TipGap = 14.0;
constexpr double TipPadding = 8.0;
constexpr double TipRadius = 6.0;
constexpr double TipMostWidth = 280.0;
constexpr double AimArm = 8.0;
constexpr int QueryFill = 40; ///< opacity of 255
constexpr int TipShadow = 40;

QColor shade(Colour colour, int alpha = 255) {
    QColor result = toColor(colour);
    result.setAlpha(alpha);
    return result;
}

QFont fontOf(double ratio, bool bold = false) {
    QFont font = QApplication::font();
    const double points = font.pointSizeF() > 0 ? font.pointSizeF() : 10.0;
    font.setPixelSize(std::max(1, qRound(points * 96.0 / 72.0 * ratio)));
    font.setBold(bold);
    return font;
}

QPolygonF onScreen(const QPolygonF& mapLine, const Camera& camera) {
    QPolygonF line;
    for (const QPointF& point : mapLine)
        line.append(camera.mapToScreen(point));
    return line;
}

/// A white card with up to two lines beside a point, moved inside the view.
void paintTip(QPainter& painter, const QSizeF& view, const QPointF& at, const QString& title, const QString& detail,
              double ratio) {
    const QFontMetricsF bold(fontOf(ratio, true)), plain(fontOf(ratio));
    const double most = TipMostWidth * ratio;
    const QString first = bold.elidedText(title, Qt::ElideRight, most);
    const QString second = plain.elidedText(detail, Qt::ElideRight, most);
    const QSizeF text(std::max(bold.horizontalAdvance(first), plain.horizontalAdvance(second)),
                      (first.isEmpty() ? 0.0 : bold.height()) + (second.isEmpty() ? 0.0 : plain.height()));
    const double padding = TipPadding * ratio;
    QRectF card(at + QPointF(TipGap, TipGap) * ratio, text + QSizeF(2.0 * padding, 1.5 * padding));
    if (card.right() > view.width())
        card.moveRight(at.x() - TipGap * ratio);
    if (card.bottom() > view.height())
        card.moveBottom(at.y() - TipGap * ratio);
    card.moveTopLeft({std::max(0.0, card.left()), std::max(0.0, card.top())});

    const cColours_CS colours = skinColours();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, TipShadow));
    painter.drawRoundedRect(card.translated(0, 2.0 * ratio), TipRadius * ratio, TipRadius * ratio);
    painter.setPen(QPen(toColor(colours.Grey(3)), ratio));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(card, TipRadius * ratio, TipRadius * ratio);
    painter.setPen(toColor(colours.Grey(6)));
    QPointF corner = card.topLeft() + QPointF(padding, 0.75 * padding);
    if (!first.isEmpty()) {
        painter.setFont(fontOf(ratio, true));
        painter.drawText(corner + QPointF(0, bold.ascent()), first);
        corner.ry() += bold.height();
    }
    painter.setFont(fontOf(ratio));
    painter.drawText(corner + QPointF(0, plain.ascent()), second);
}

void paintSketch(QPainter& painter, const Sketch& sketch, const Camera& camera, double ratio) {
    const cColours_CS colours = skinColours();
    const bool query = sketch.tool == MapTool::PolygonQuery || sketch.tool == MapTool::CircleQuery;
    const QColor ink = toColor(query ? colours.Turquoise(6) : colours.Indigo(5));
    const QPolygonF line = onScreen(sketch.outline(), camera);
    if (sketch.isArea()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(shade(query ? colours.Turquoise(4) : colours.Indigo(3), QueryFill));
        painter.drawPolygon(line);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(QColor(255, 255, 255, 200), (SketchWidth + 2.0) * ratio, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line);
    painter.setPen(QPen(ink, SketchWidth * ratio, query ? Qt::DashLine : Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line);
    if (sketch.tool == MapTool::PolygonQuery)
        return;
    painter.setPen(QPen(Qt::white, ratio));
    painter.setBrush(ink);
    for (const QPointF& corner : sketch.points)
        painter.drawEllipse(camera.mapToScreen(corner), CornerRadius * ratio, CornerRadius * ratio);
}

void paintSketches(QPainter& painter, const MapSurface& surface, const MapPointer& pointer) {
    const double ratio = pointer.devicePixelRatio;
    const Camera& camera = surface.camera();
    const auto tellLength = [&](const Sketch& sketch) {
        paintTip(painter, camera.pixelSize(), camera.mapToScreen(sketch.points.back()), {},
                 QString::fromStdString(distanceText(sketch.length())), ratio);
    };
    for (const Sketch& sketch : pointer.sketches().kept()) {
        paintSketch(painter, sketch, camera, ratio);
        if (sketch.tool == MapTool::Measure)
            tellLength(sketch);
    }
    if (const auto& current = pointer.sketches().current()) {
        paintSketch(painter, *current, camera, ratio);
        if (current->tool != MapTool::PolygonQuery)
            tellLength(*current);
    }
}

void paintAim(QPainter& painter, const QPointF& centre, double ratio) {
    const double arm = AimArm * ratio;
    for (const auto& [colour, width] :
         {std::pair(QColor(Qt::white), 4.0), std::pair(toColor(skinColours().Indigo(6)), 2.0)}) {
        painter.setPen(QPen(colour, width * ratio, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(centre - QPointF(arm, 0), centre + QPointF(arm, 0));
        painter.drawLine(centre - QPointF(0, arm), centre + QPointF(0, arm));
    }
}

} // namespace

void CanvasOverlay::paint(QPainter& painter, const MapSurface& surface, const MapPointer& pointer) {
    const double ratio = pointer.devicePixelRatio;
    const QSizeF view = surface.camera().pixelSize();
    painter.setRenderHint(QPainter::Antialiasing);
    const std::optional<MapHit> hit = pointer.sketches().current() ? std::nullopt : pointer.hover();
    if (hit)
        paintHover(painter, surface, *hit, ratio);
    paintSketches(painter, surface, pointer);
    if (const auto box = pointer.zoomBox()) {
        painter.setPen(QPen(toColor(skinColours().Indigo(5)), ratio));
        painter.setBrush(shade(skinColours().Indigo(3), QueryFill));
        painter.drawRect(*box);
    }
    const QPointF centre(view.width() / 2.0, view.height() / 2.0);
    if (pointer.aimsAtCentre())
        paintAim(painter, centre, ratio);
    if (hit)
        paintTip(painter, view, pointer.aimsAtCentre() ? centre : pointer.position(),
                 QString::fromStdString(areaName(surface.drawn(), *hit)),
                 QString::fromStdString(areaValue(surface.drawn(), *hit)), ratio);
}

void CanvasOverlay::paintHover(QPainter& painter, const MapSurface& surface, const MapHit& hit, double ratio) {
    const qint64 picture = surface.picture().cacheKey();
    if (!outline_ || outline_->hit != hit || outline_->camera != surface.camera() || picture_ != picture) {
        const QPainterPath path = screenPath(shapeOf(surface.drawn(), hit), surface.camera());
        // A small area would drown in a wide outline.
        const double side = std::min(path.boundingRect().width(), path.boundingRect().height());
        const double width = std::clamp(side / HoverShare, ratio, HoverWidth * ratio);
        const double reach = 2.0 * width;
        const QRect box = path.boundingRect()
                              .adjusted(-reach, -reach, reach, reach)
                              .toAlignedRect()
                              .intersected(QRect(QPoint(0, 0), surface.camera().pixelSize()));
        outline_ = {hit, surface.camera(), QImage(box.size(), QImage::Format_ARGB32_Premultiplied), box.topLeft()};
        picture_ = picture;
        outline_->image.fill(Qt::transparent);
        QPainter ink(&outline_->image);
        ink.setRenderHint(QPainter::Antialiasing);
        ink.translate(-box.topLeft());
        ink.strokePath(path, QPen(QColor(255, 255, 255, 220), reach, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        ink.strokePath(path, QPen(toColor(skinColours().Grey(6)), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    painter.drawImage(outline_->corner, outline_->image);
}
