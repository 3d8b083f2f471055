#pragma once

#include "map/surface/LabelFace.h"
#include "map/surface/LabelPlacement.h"
#include "map/surface/LayerContent.h"
#include "map/surface/MapStyle.h"
#include "map/surface/ScreenPaths.h"

#include <QImage>

#include <map>
#include <string>
#include <vector>

/// Writes the labels of a map. Room for them is found on the whole map, not on the part that is seen: while the view
/// moves and its scale stays, every label stays where it is. Needs a QGuiApplication. Main thread.
class LabelPainter {
public:
    /// Finds room for the labels of all layers in the picture, lower layers first.
    void place(const DrawnMap& map, const PixelFrame& frame, const MapStyle& style);
    /// Writes the labels of one layer into a part of the picture that shows the placed map.
    void paint(QImage& picture, const QRect& area, std::size_t layer);

    /// Where the labels of a layer stand, in pixels of the view; also those that lie outside of it.
    std::vector<QRectF> boxes(std::size_t layer) const;

private:
    struct Label {
        QPoint place; ///< top left corner of its box, in pixels of the map
        QSizeF size;
        LabelFace* face;
        QString text;
    };
    void placeLayer(const Layer& layer, const LayerContent& content, const MapStyle& style, LabelPlacement& placement,
                    std::vector<Label>& labels);
    LabelFace& faceOf(const Symbol& symbol, const MapStyle& style);

    PixelFrame frame_{Camera()};
    std::vector<std::vector<Label>> layers_; // beside the layers of the map
    std::map<std::string, LabelFace> faces_;
};
