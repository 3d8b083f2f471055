#pragma once

class MapSurface;

/// A press of a mouse button with the tool that zooms out: where the view is already past the whole map, brings the
/// whole of the lowest layer back and draws it, and keeps the tool. `wholeScale` is the width of that view, map units.
/// Tells whether it has done so. The right button does nothing. Errors are logged.
bool zoomOutPastWholeMap(MapSurface& surface, int button, double wholeScale);

/// Deletes all layers but the lowest, from the top, and closes their files. The lowest is current then.
void deleteUpperLayers(MapSurface& surface);
