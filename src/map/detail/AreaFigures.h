#pragma once

#include "data/engine/Recordset.h"
#include "map/detail/AreaDetail.h"

#include <string>

/// The figures of a statistics row in the words of the window. A null counts as 0. Throws DatabaseError 3265 where the
/// table lacks a column.
void describeFigures(const Recordset& row, const AreaQuestion& question, AreaDetail& detail);

/// What the campaign spend comes to in the area of the row.
AreaDetail::Campaign describeCampaign(const Recordset& row, int dataSet, const CampaignCosts& costs);
