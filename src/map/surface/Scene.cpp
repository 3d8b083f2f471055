#include "map/surface/Scene.h"

bool isDrawnAt(const Layer& layer, double mapScale) {
    return layer.LayerVisible && mapScale >= layer.LayerFromZoomTrigger &&
           (layer.LayerToZoomTrigger <= 0 || mapScale <= layer.LayerToZoomTrigger);
}
