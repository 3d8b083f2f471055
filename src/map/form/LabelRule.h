#pragma once

#include "stats/CurrentTables.h"

/// When the names of small areas are shown: below a width of the view, in map units, at which they no longer cover each
/// other. Names of TV regions always are. Customer groups have a rule of their own.

/// After a click into the map.
bool labelsAfterClick(const CurrentTables& tables, double mapScale);
/// After a tool was chosen from the tool bar. `flag`: whether they are shown now, which stays where no boundary is in
/// use. To the full extent the names of small areas go.
bool labelsAfterToolBarClick(const CurrentTables& tables, double mapScale, bool zoomToExtent, bool flag);
