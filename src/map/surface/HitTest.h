#pragma once

#include "map/surface/LayerContent.h"

#include <QPointF>
#include <QPolygonF>

#include <optional>
#include <vector>

/// An area of a drawn map.
struct MapHit {
    std::size_t layer = 0; ///< in the drawn map
    std::size_t drawn = 0; ///< position in the layer's content
    friend bool operator==(const MapHit&, const MapHit&) = default;
};

/// Whether a point of the map lies inside a polygon as it is filled: inside its rings, outside of its holes, and inside
/// again on an island in a hole, whatever way the rings run.
bool isInside(const MapShape& polygon, const QPointF& mapPoint);

/// The area that is seen at a point of the map: the uppermost polygon there. Nothing at sea, and label points are never
/// hit.
std::optional<MapHit> areaAt(const DrawnMap& map, const QPointF& mapPoint);

/// The areas of which at least half lies inside an outline on the map, from the uppermost layer down. An area that
/// several layers draw is told once, for the uppermost of them.
std::vector<MapHit> areasWithin(const DrawnMap& map, const QPolygonF& mapOutline);

const Layer& layerOf(const DrawnMap& map, const MapHit& hit);
const DrawnShape& drawnOf(const DrawnMap& map, const MapHit& hit);
const MapShape& shapeOf(const DrawnMap& map, const MapHit& hit);
