#pragma once

#include "data/shapes/ShapeCodec.h"

/// Fills the bays of a ring that are thinner than `width`, map units, and whose mouth is no wider: the cracks that two
/// outlines of one border leave where they reach the coast. Land lies to the left of the closed ring. Its other
/// vertices stay as they are; a ring without such bays is given back unchanged. The new ring may cross itself where
/// other lines lie in the mouth of a bay.
ShapeRing withoutThinBays(const ShapeRing& ring, double width);
