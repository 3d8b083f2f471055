#pragma once

#include <QColor>
#include <QPixmap>

/// A filled box with a thin grey line around it; size in device-independent pixels.
QPixmap swatch(const QColor& colour, QSize size);

/// The colour as text on white: darker shades of it until it can be read.
QColor readableShade(QColor colour);
