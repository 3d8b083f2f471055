#pragma once

#include "map/surface/MapTool.h"

#include <QPointF>
#include <QPolygonF>

#include <optional>
#include <string>
#include <vector>

/// A figure that the user has drawn on the map with one of the tools. Map units.
struct Sketch {
    MapTool tool = MapTool::DrawPoint;
    std::vector<QPointF> points; ///< never empty; of a circle: its centre and a point of its rim

    bool isCircle() const { return tool == MapTool::DrawCircle || tool == MapTool::CircleQuery; }
    bool isArea() const { return isCircle() || tool == MapTool::DrawPolygon || tool == MapTool::PolygonQuery; }
    /// The line or the rim to be drawn; of an area it ends where it begins.
    QPolygonF outline() const;
    /// Along the points; of a circle its radius; of a polygon all round.
    double length() const;
};

/// "850 m", "12.4 km (7.7 miles)". A map unit is ten metres.
std::string distanceText(double mapUnits);

/// The figures on a map and the one in the making. They belong to the window and are lost with it. Knows no widget; a
/// gesture is told by the points of the map where the button went down, moved and came up.
class SketchPad {
public:
    /// Whether the tool draws, and whether it does so in one stroke with the button down.
    static bool draws(MapTool tool);
    static bool drawsInOneStroke(MapTool tool);

    void press(MapTool tool, const QPointF& mapPoint);
    void move(const QPointF& mapPoint); ///< with the button up as well: the end of the line follows
    /// Ends a stroke. Of a query: the outline that was drawn, if it encloses anything.
    std::optional<QPolygonF> release();
    /// Ends a figure that is drawn corner by corner.
    void finish();
    /// Takes back the last corner. Tells whether there was one.
    bool takeBack();
    /// Gives up the figure in the making, or else removes all figures. Tells whether there was anything.
    bool clear();
    void forget(MapTool tool); ///< removes the figures of one tool

    const std::vector<Sketch>& kept() const { return kept_; }
    /// The figure in the making; its last point is where the pointer is.
    const std::optional<Sketch>& current() const { return current_; }

private:
    std::vector<Sketch> kept_;
    std::optional<Sketch> current_;
};
