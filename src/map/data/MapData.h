#pragma once

#include "map/data/DataStatement.h"
#include "map/data/DataTable.h"

/// The data view of what a map shows now: the statistics table in use of the boundary, the period `dataSet`.
/// `densities`: the map shows rates for each head of population.
DataView dataView(long boundary, int dataSet, bool densities);

/// Reads the rows from the system map database. Throws RuntimeError 5 where no table of the boundary is in use, and
/// DatabaseError.
DataTable readDataTable(const DataView& view);
