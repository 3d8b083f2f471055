#pragma once

#include "map/surface/LayerContent.h"
#include "map/surface/MapStyle.h"
#include "map/surface/Scene.h"
#include "map/surface/ScreenPaths.h"

#include <QImage>

#include <vector>

class QPainter;

/// Draws layers through a camera into a picture. Needs no widget; needs a QGuiApplication for the fonts. Main thread.
class MapPainter {
public:
    /// A picture of the camera's pixel size. `contents` stands beside `scene.layers`.
    QImage paint(const Scene& scene, const std::vector<LayerContent>& contents, const Camera& camera,
                 const MapStyle& style);

private:
    void paintPolygons(QPainter& painter, const Layer& layer, const LayerContent& content, const Camera& camera,
                       const MapStyle& style);

    ScreenPaths paths_;
};
