#pragma once

#include "map/surface/ShapeTable.h"

#include <memory>
#include <string>
#include <vector>

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
