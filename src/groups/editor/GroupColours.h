#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// The colours of customer groups on the map and in lists, 0xRRGGBB. A group's colour is not kept: it follows from its
/// place in the list, so it changes when an earlier group goes.
std::span<const std::uint32_t> groupColours();

/// Of a place in the list, from 0. Colours begin again after the last one.
std::uint32_t groupColour(std::size_t place);
