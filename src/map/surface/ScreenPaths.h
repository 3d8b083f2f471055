#pragma once

#include "map/surface/Camera.h"
#include "map/surface/ShapeTable.h"

#include <QPainterPath>

#include <memory>
#include <unordered_map>
#include <vector>

/// The part of a ring that lies inside a box, closed along the box's sides. Units are those of the ring; empty where
/// nothing of it lies inside.
ShapeRing clipRing(const ShapeRing& ring, const QRectF& box);

/// A polygon as pixels of a view: snapped to half a pixel, so that neighbours that share a border still share it and
/// points closer than that fall together; clipped a little outside the view. Empty where nothing of it can be seen.
QPainterPath screenPath(const MapShape& polygon, const Camera& camera);

/// The pixels of whole shape tables, kept for the last view, so that a redraw with other colours only fills. Main
/// thread.
class ScreenPaths {
public:
    /// One path for each of the table's shapes, in their order.
    const std::vector<QPainterPath>& of(const std::shared_ptr<const ShapeTable>& table, const Camera& camera);

private:
    Camera camera_;
    std::unordered_map<std::shared_ptr<const ShapeTable>, std::vector<QPainterPath>> paths_;
};
