#pragma once

#include <string>
#include <string_view>
#include <vector>

class MapSurface;

/// Makes the symbols of the surface's current layer, which has one symbol, from the texts of a band list: numeric bands
/// where the first text is a number, else one band for each text. Band i has the i-th colour of the map palette, light
/// at the low end. `unitSign` stands before every number in a name. `labelled`: the areas' own names may show; else no
/// band has labels. The last symbol is current afterwards. An empty list changes nothing. Throws RuntimeError 13 where
/// a break between numeric bands is no number.
void buildBandSymbols(MapSurface& surface, const std::vector<std::string>& texts, std::string_view unitSign,
                      bool labelled);
