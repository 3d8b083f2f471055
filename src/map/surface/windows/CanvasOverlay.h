#pragma once

#include "map/surface/Camera.h"
#include "map/surface/HitTest.h"

#include <QImage>
#include <QPoint>

#include <optional>

class MapPointer;
class MapSurface;
class QPainter;

/// Paints what lies over a map's picture: the outline of the area under the pointer and its name and value beside it,
/// figures drawn by hand with their lengths, the box of a zoom, the aim of the keyboard. Device pixels.
class CanvasOverlay {
public:
    void paint(QPainter& painter, const MapSurface& surface, const MapPointer& pointer);

private:
    /// The outline of the area under the pointer, kept while the pointer moves over it: wide lines take their time.
    struct Outline {
        MapHit hit;
        Camera camera;
        QImage image;
        QPoint corner;
    };
    void paintHover(QPainter& painter, const MapSurface& surface, const MapHit& hit, double ratio);

    std::optional<Outline> outline_;
    qint64 picture_ = 0; // for which the outline was made
};
