#pragma once

#include <QIcon>

#include <functional>

class QPainter;
class QRectF;

/// Draws a picture into a box, in the coordinates of the painter.
using PaintPicture = std::function<void(QPainter&, const QRectF&)>;

/// An icon that is painted at the size and scale that is asked for. Window managers and task bars are offered the usual
/// sizes (16 to 256 pixels). Disabled it is pale.
QIcon paintedIcon(PaintPicture paint);
