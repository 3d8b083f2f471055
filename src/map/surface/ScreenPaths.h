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

/// The pixels of a view counted from the zero of the map. Views of one scale share them: a view is moved by whole
/// pixels only, so that what was drawn for one serves its neighbours.
struct PixelFrame {
    explicit PixelFrame(const Camera& camera);

    double pixelsPerUnit;
    QPointF origin; ///< the view's top left corner, whole numbers
    QSize size;

    /// A rectangle of the view in map units; x and y are the low corner.
    QRectF mapRect(const QRectF& viewPixels) const;
    /// A box of the map in pixels of the view.
    QRectF viewRect(const QRectF& mapBox) const;
};

/// The polygons of shape tables as pixels, kept while the scale stays. Corners are snapped to half a pixel, so that
/// neighbours still share their border and points closer than that fall together; what lies far outside the view is cut
/// off. Main thread; prepare() works on two.
class ScreenPaths {
public:
    /// Begins a picture: forgets everything where the scale has changed or the view has moved far.
    void begin(const PixelFrame& frame);
    /// Makes the paths of the given positions of the table that have not been made yet.
    void prepare(const std::shared_ptr<const ShapeTable>& table, const std::vector<std::size_t>& shapes);
    /// A path that prepare() has seen to, in pixels of the cache; empty where it encloses nothing.
    const QPainterPath& path(const ShapeTable& table, std::size_t shape) const;
    /// What is to be added to a path for pixels of the view; whole numbers.
    QPointF offset() const { return base_ - frame_.origin; }

private:
    struct Table {
        std::shared_ptr<const ShapeTable> shapes; // held, so that no other table takes its place in memory
        std::vector<QPainterPath> paths;
        std::vector<char> made; // beside paths; no vector of bool: two threads write to it
    };
    QPainterPath make(const MapShape& polygon) const;

    PixelFrame frame_{Camera()};
    QPointF base_; // the pixel that paths count from
    std::unordered_map<const ShapeTable*, Table> tables_;
};

/// One polygon as pixels of the camera's view.
QPainterPath screenPath(const MapShape& polygon, const Camera& camera);
