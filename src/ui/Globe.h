#pragma once

#include <QRectF>

class QPainter;

/// The product's sign: a globe with its net of meridians and parallels, and a pin on it. Painted, so that it is crisp
/// at every size.
enum class GlobeStyle {
    Full, ///< for icons and the header
    Pale  ///< large and quiet, behind other things
};

/// Fills the largest square in the middle of `box`; coordinates of the painter. Below 24 units the net is thinned.
void paintGlobe(QPainter& painter, const QRectF& box, GlobeStyle style);
