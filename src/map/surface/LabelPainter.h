#pragma once

#include "map/surface/Camera.h"
#include "map/surface/LabelPlacement.h"
#include "map/surface/LayerContent.h"
#include "map/surface/MapStyle.h"
#include "map/surface/Scene.h"

#include <QFont>

class QPainter;

/// A label's font in device pixels. A family that is not installed is replaced by one of the same widths.
QFont labelFont(const LabelFont& font, double devicePixelRatio);

/// Writes the labels of one layer for which `placement` finds room: dark on a light rim, so that they read on every
/// colour.
void paintLabels(QPainter& painter, const Layer& layer, const LayerContent& content, const Camera& camera,
                 const MapStyle& style, LabelPlacement& placement);
