#include "groups/shapes/ModData_CheckLabelCoords.h"

#include "core/CurrentProcedure.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "groups/shapes/LabelStatements.h"

#include <cstdlib>

namespace {

std::int64_t distance(std::int32_t a, std::int32_t b) {
    return std::abs(std::int64_t{a} - b);
}

std::int32_t middleAcross(const Recordset& rows) {
    return middle(wholeUnits(rows, "boundlowx"), wholeUnits(rows, "bounduppx"));
}

} // namespace

long ModData_CheckLabelCoords(const std::string& GroupName, const std::string& ShapeTable, std::int32_t TargetY,
                              std::int32_t& LabelY, std::int32_t& LabelX, std::shared_ptr<Recordset>& Recordset) {
    const CurrentProcedure procedure("ModData_CheckLabelCoords");
    const bool done = onSystemDatabase([&] {
        Recordset = systemDatabase().openRecordset(selectMembers(ShapeTable) + " and groupname = " + quoted(GroupName) +
                                                   "  and reference not in " + std::string(CallAreas) +
                                                   " ORDER BY TblGroup_Link.GroupName");
        const auto& rows = *Recordset;
        if (rows.EOF_())
            return;
        std::int32_t x = middleAcross(rows);
        std::int32_t y = middle(wholeUnits(rows, "boundlowy"), wholeUnits(rows, "bounduppy"));
        for (; !rows.EOF_(); Recordset->MoveNext()) {
            const std::int32_t centre = wholeUnits(rows, "CenterY");
            if (distance(TargetY, centre) < distance(TargetY, y)) {
                y = centre;
                x = middleAcross(rows);
            }
        }
        LabelX = x;
        LabelY = y;
    });
    Recordset.reset();
    return done ? 0 : -1;
}
