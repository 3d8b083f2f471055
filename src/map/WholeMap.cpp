#include "map/WholeMap.h"

#include "core/LogAndGoOn.h"
#include "map/surface/MapSurface.h"

namespace {

constexpr double wholeMapPassed = 15000; ///< width of the view, map units
constexpr int rightButton = 2;

} // namespace

bool zoomOutPastWholeMap(MapSurface& surface, int button, double wholeScale) {
    if (button == rightButton || surface.UIMode() != MapTool::ZoomOut || surface.MapScale() <= wholeMapPassed)
        return false;
    surface.setUIMode(MapTool::ZoomToExtent);
    surface.setMapScale(wholeScale);
    surface.setLayerIndex(0);
    ignoreErrors([&] { surface.ZoomToExtent(); });
    logAndGoOn([&] { surface.DrawMap(); });
    surface.setUIMode(MapTool::ZoomOut);
    return true;
}

void deleteUpperLayers(MapSurface& surface) {
    while (surface.NumberOfLayers() >= 2) {
        surface.setLayerIndex(surface.NumberOfLayers() - 1);
        surface.CloseLayerSource(surface.LayerIndex());
        surface.DeleteLayer();
    }
    surface.setLayerIndex(0);
}
