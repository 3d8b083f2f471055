#pragma once

#include "sample/geography/Geos.h"

#include <span>

namespace sample {

/// Where the name of an area stands best: the middle of the largest circle within its largest part, always inside.
/// `rings` are those of an Area and not empty.
MapPoint labelPoint(const Geos& geos, std::span<const Ring> rings);

} // namespace sample
