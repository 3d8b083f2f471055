#pragma once

#include "map/surface/LabelPlacement.h"
#include "map/surface/Scene.h"
#include "map/surface/ScreenPaths.h"

#include <QColor>
#include <QFont>
#include <QImage>

#include <memory>
#include <string>
#include <vector>

class QPainter;

/// One shape of a layer as it is to be drawn.
struct DrawnShape {
    std::size_t shape = 0;  ///< position in the layer's table of shapes
    std::size_t symbol = 0; ///< position in the layer's symbols
    std::string label;
};

/// What a layer has to show once its rows are read. Without a table it shows nothing.
struct LayerContent {
    std::shared_ptr<const ShapeTable> table;
    std::vector<DrawnShape> shapes;
};

/// Colours of the map itself, and how many device pixels an interface pixel has.
struct MapStyle {
    QColor sea{0xEC, 0xF1, 0xF5};
    QColor land{Qt::white}; ///< below every polygon that is not filled
    QColor halo{255, 255, 255, 215};
    double devicePixelRatio = 1.0;
};

QColor colourOf(MapColourCode code);

/// A label's font in device pixels. A family that is not installed is replaced by one of the same widths.
QFont labelFont(const LabelFont& font, double devicePixelRatio);

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
