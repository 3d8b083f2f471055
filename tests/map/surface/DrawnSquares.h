#pragma once

#include "map/surface/LayerContent.h"

#include <vector>

/// An upright square, its low left corner at (x, y), anticlockwise.
inline ShapeRing square(double x, double y, double side) {
    return {{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}, {x, y}};
}

inline MapShape polygon(std::int64_t id, std::vector<ShapeRing> rings) {
    MapShape shape;
    shape.id = id;
    shape.shape.rings = std::move(rings);
    const ShapeBounds bounds = boundsOf(shape.shape);
    shape.bounds = QRectF(QPointF(bounds.lowX, bounds.lowY), QPointF(bounds.upX, bounds.upY));
    shape.anchor = shape.bounds.center();
    return shape;
}

/// Puts a layer of polygons on top of a map, all drawn with its first symbol.
inline void addLayer(DrawnMap& map, std::vector<MapShape> shapes, const Symbol& symbol = {}) {
    if (!map.contents.empty())
        map.scene.layers.emplace_back();
    map.scene.layers.back().symbols = {symbol};
    LayerContent content;
    for (std::size_t i = 0; i < shapes.size(); ++i)
        content.shapes.push_back({i, 0, ""});
    content.table = std::make_shared<const ShapeTable>(std::move(shapes));
    map.contents.push_back(std::move(content));
}
