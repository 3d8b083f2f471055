#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRect>

#include <vector>

/// A filled and outlined path that is ready to be drawn. The path is held by the caller.
struct PathFill {
    const QPainterPath* path = nullptr;
    QRectF box; ///< that holds the path and its outline, in pixels of the view
    QColor fill;
    QColor outline;
};

/// Draws fills in their order into a part of a picture. `offset`: from the paths' pixels to those of the picture.
/// Shared out over two threads by the number of corners; the pixels do not depend on that.
void paintFills(QImage& picture, const QRect& area, const std::vector<PathFill>& fills, const QPointF& offset);

/// A picture that shares the pixels of a part of `picture`, which must stay while it is used.
QImage partOf(QImage& picture, const QRect& area);
