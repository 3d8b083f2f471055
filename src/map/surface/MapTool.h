#pragma once

#include <array>
#include <cstddef>

/// The tools of the mouse, and what a button of the tool bar reports. A number without a name is a tool that does
/// nothing.
enum class MapTool : int {
    Pan = 0,
    ZoomIn = 2,
    ZoomOut = 3,
    Information = 4, ///< single selection
    Measure = 5,
    CircleQuery = 6,
    PolygonQuery = 7, ///< polygon selection
    ZoomToExtent = 8, ///< acts at once; so do HideToolBar and GoBack
    DrawPoint = 9,
    DrawPolyline = 10,
    DrawPolygon = 11,
    DrawCircle = 12,
    HideToolBar = 13,
    GoBack = 14
};

inline constexpr std::size_t ToolButtonCount = 14;

/// The buttons of the tool bar, in their fixed order.
inline constexpr std::array<MapTool, ToolButtonCount> ToolButtons{
    MapTool::ZoomToExtent, MapTool::Pan,          MapTool::ZoomIn,      MapTool::ZoomOut,   MapTool::Measure,
    MapTool::Information,  MapTool::PolygonQuery, MapTool::CircleQuery, MapTool::DrawPoint, MapTool::DrawPolyline,
    MapTool::DrawPolygon,  MapTool::DrawCircle,   MapTool::HideToolBar, MapTool::GoBack};

/// Whether a press of the tool's button acts at once and leaves the tool in hand as it is.
constexpr bool actsAtOnce(MapTool tool) {
    return tool == MapTool::ZoomToExtent || tool == MapTool::HideToolBar || tool == MapTool::GoBack;
}
