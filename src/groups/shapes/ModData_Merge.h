#pragma once

#include "core/Caption.h"

#include <cstdint>
#include <string>

/// What is known of the group that is being merged. Whoever fills PGN_TEMP sets all four.
extern std::string MergeGroupName;
extern std::int16_t MergePolygonID; ///< becomes the group's POLYGONID and POINTID
extern std::int16_t MergeStep;      ///< number of the current pass; 0 before the first
extern std::int16_t MergeStepTotal; ///< shown as the total of the passes

/// Merges the polygons of PGN_TEMP in gdbSystem pair by pair, pass by pass, and stores the one that is left in
/// PGN_GROUPS and its centre in PNT_GROUPS. StatusLabel receives the progress text; yields around every union. Errors
/// are logged and passed over; a merge that stops short leaves the group's earlier polygon and label. Main thread.
void ModData_Merge(const Caption& StatusLabel);
