#pragma once

#include "map/surface/Camera.h"
#include "map/surface/Scene.h"
#include "map/surface/ShapeTable.h"

#include <memory>
#include <string>
#include <vector>

/// One shape of a layer as it is to be drawn.
struct DrawnShape {
    std::size_t shape = 0;  ///< position in the layer's table of shapes
    std::size_t symbol = 0; ///< position in the layer's symbols
    std::string label;
    Value value = Value(); ///< that selected the symbol
};

/// What a layer has to show once its rows are read. Without a table it shows nothing.
struct LayerContent {
    std::shared_ptr<const ShapeTable> table;
    std::vector<DrawnShape> shapes;
};

/// What a picture shows: the layers as they were when it was drawn, what they had to show, and the view. Stays what it
/// is while the layers of the surface change, so that a click means what is seen.
struct DrawnMap {
    Scene scene;
    std::vector<LayerContent> contents; ///< beside scene.layers
    Camera camera;

    /// The content of a layer that is in the picture; null where the layer is hidden or has nothing to show.
    const LayerContent* inPicture(std::size_t layer) const {
        const bool shown = contents[layer].table && isDrawnAt(scene.layers[layer], camera.scale());
        return shown ? &contents[layer] : nullptr;
    }
};
