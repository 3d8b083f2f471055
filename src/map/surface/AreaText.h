#pragma once

#include "map/surface/HitTest.h"

#include <string>

/// Name of an area, as its table of shapes has it; its label where that has none.
std::string areaName(const DrawnMap& map, const MapHit& hit);

/// The figure behind an area's colour as a person reads it: "1,234", "£12.50", a text as it is; "no figure" where it is
/// null; empty where the layer's colours follow no figure. A layer whose name ends with "(£)" counts money.
std::string areaValue(const DrawnMap& map, const MapHit& hit);
