#pragma once

#include <string>

/// What the data view of a boundary shows: one row for each area of the statistics table.
struct DataView {
    long boundary = 2;          ///< 0 exchange, 1 CSG, 2 TV region, 3 postcode district, 5 customer groups
    std::string table;          ///< the statistics table in use
    int dataSet = 1;            ///< the period whose measures are shown
    bool hasCostColumns = true; ///< the table has the shares of a campaign spend
    bool hasPopulation = false; ///< population figures exist for the boundary (TV regions and postcode districts)
    bool densities = false;     ///< the figures are rates for each head of population
};

/// The statement behind the data view; empty for a boundary that there is none of. Money and rates are formatted texts.
std::string dataStatement(const DataView& view);
