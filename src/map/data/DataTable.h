#pragma once

#include "data/types/Value.h"

#include <optional>
#include <string>
#include <vector>

/// The rows of a grid of figures, in memory: the area and its figures, row by row. Plain data.
struct DataTable {
    std::string title = {};                    ///< of the boundary: "TV Regions"
    std::vector<std::string> captions = {};    ///< of the columns; the first is that of the area
    std::vector<std::vector<Value>> rows = {}; ///< each of as many values as there are captions
    bool rates = false;                        ///< the figures are rates for each head of population
};

/// A figure as a number, also where it is a formatted text ("£1,234.50"); nothing where it is none.
std::optional<double> numberOf(const Value& figure);
