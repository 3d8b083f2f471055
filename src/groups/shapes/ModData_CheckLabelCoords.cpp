#include "groups/shapes/ModData_CheckLabelCoords.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "groups/shapes/LabelStatements.h"

#include <cstdlib>
#include <optional>

namespace {

std::int64_t distance(std::int32_t a, std::int32_t b) {
    return std::abs(std::int64_t{a} - b);
}

struct LabelPoint {
    std::int32_t x;
    std::int32_t y;
};

/// The point of the members up to the current row, from that of those before it.
LabelPoint withMember(const std::optional<LabelPoint>& before, const Recordset& row, std::int32_t targetY) {
    const std::int32_t x = middle(wholeUnits(row, "boundlowx"), wholeUnits(row, "bounduppx"));
    const LabelPoint start =
        before ? *before : LabelPoint{x, middle(wholeUnits(row, "boundlowy"), wholeUnits(row, "bounduppy"))};
    const std::int32_t centre = wholeUnits(row, "CenterY");
    return distance(targetY, centre) < distance(targetY, start.y) ? LabelPoint{x, centre} : start;
}

} // namespace

long ModData_CheckLabelCoords(const std::string& GroupName, const std::string& ShapeTable, std::int32_t TargetY,
                              std::int32_t& LabelY, std::int32_t& LabelX, std::shared_ptr<Recordset>& Recordset) {
    const CurrentProcedure procedure("ModData_CheckLabelCoords");
    const bool opened = onSystemDatabase([&] {
        Recordset = systemDatabase().openRecordset(selectMembers(ShapeTable) + " and groupname = " + quoted(GroupName) +
                                                   "  and reference not in " + std::string(CallAreas) +
                                                   " ORDER BY TblGroup_Link.GroupName");
    });
    if (!opened)
        return -1;
    std::optional<LabelPoint> label;
    for (; !Recordset->EOF_(); Recordset->MoveNext())
        logAndGoOn([&] { label = withMember(label, *Recordset, TargetY); }); // a member without a place does not count
    Recordset.reset();
    if (label) {
        LabelX = label->x;
        LabelY = label->y;
    }
    return 0;
}
