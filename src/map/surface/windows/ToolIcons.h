#pragma once

#include "map/surface/MapTool.h"

#include <QIcon>
#include <QRectF>

class QColor;
class QPainter;

/// The sign of a map tool, painted, so that it is crisp at every size; in the colours of the skin, and in another for a
/// button that is held down.
QIcon toolIcon(MapTool tool);

/// Fills the largest square in the middle of `box` with the sign's lines.
void paintToolSign(QPainter& painter, const QRectF& box, MapTool tool, const QColor& colour);
