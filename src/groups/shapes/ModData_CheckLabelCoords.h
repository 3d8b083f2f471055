#pragma once

#include "data/engine/Recordset.h"

#include <cstdint>
#include <memory>
#include <string>

/// Chooses where the label of a group stands: at the height of the centre of that member which is nearest to TargetY,
/// or in the middle of the first member's box where none is nearer; across, in the middle of that member's box. A group
/// without members on the map leaves LabelY and LabelX as they are. Whole map units. Reads gdbSystem through the
/// recordset slot, which is closed again. Returns 0 for success; an error is logged and gives -1. Main thread.
long ModData_CheckLabelCoords(const std::string& GroupName, const std::string& ShapeTable, std::int32_t TargetY,
                              std::int32_t& LabelY, std::int32_t& LabelX, std::shared_ptr<Recordset>& Recordset);
