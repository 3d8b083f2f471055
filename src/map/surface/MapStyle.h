#pragma once

#include "map/surface/Scene.h"

#include <QColor>

/// Colours of the map itself, the size of its labels, and how many device pixels an interface pixel has.
struct MapStyle {
    QColor sea{0xEC, 0xF1, 0xF5};
    QColor land{Qt::white}; ///< of every polygon that is not filled
    QColor halo{255, 255, 255, 225};
    double labelScale = 1.0; ///< by which labels are larger than their fonts say
    double devicePixelRatio = 1.0;
};

inline QColor colourOf(MapColourCode code) {
    return QColor::fromRgb(swapRedAndBlue(code));
}
