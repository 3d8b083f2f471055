#pragma once

#include "stats/MapMaxima.h"

#include <span>
#include <string>
#include <string_view>

/// What a map can show, as cmbMapType lists it.
struct MapMeasure {
    long mapType;          ///< item data of cmbMapType
    std::string_view text; ///< as it is listed
    std::string_view stem; ///< of the statistics column; the data set number stands behind it
    double (*maximum)(const MapMaxima&);
};

/// All measures, in the order of their codes.
std::span<const MapMeasure> mapMeasures();
/// Null for a code that no measure has.
const MapMeasure* findMapMeasure(long mapType);

/// The statistics column of a measure and data set ("TotalCalls1"); empty for an unknown map type.
std::string statisticsColumn(long mapType, int dataSet);

/// "£" for columns of money, else empty.
std::string unitSignOf(std::string_view column);
