#pragma once

#include "map/surface/LabelPainter.h"
#include "map/surface/LayerContent.h"
#include "map/surface/MapStyle.h"
#include "map/surface/ScreenPaths.h"

#include <QImage>

#include <vector>

struct PathFill;

/// Draws a map into a picture. Needs no widget; needs a QGuiApplication for the fonts. The same map gives the same
/// picture, whatever was drawn before. Main thread; the areas are filled on two.
class MapPainter {
public:
    /// A picture of the camera's pixel size.
    QImage paint(const DrawnMap& map, const MapStyle& style);

    /// The same map where only the view has moved, its scale unchanged: what `picture`, drawn for `from`, shows already
    /// is taken over and only what has come into view is drawn, labels and all.
    QImage paintMoved(const QImage& picture, const Camera& from, const DrawnMap& map, const MapStyle& style);

private:
    std::vector<PathFill> fillsOf(const Layer& layer, const LayerContent& content, const QRectF& area,
                                  const MapStyle& style);
    void paintLayers(QImage& picture, const QRect& area, const DrawnMap& map, const MapStyle& style);
    void paintShapes(QImage& picture, const QRect& area, const Layer& layer, const LayerContent& content,
                     const Camera& camera, const MapStyle& style);

    PixelFrame frame_{Camera()};
    ScreenPaths paths_;
    LabelPainter labels_;
};
