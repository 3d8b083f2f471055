#include "groups/shapes/ModData_UpdateGroupLabels.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/Progress.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "groups/shapes/LabelStatements.h"
#include "groups/shapes/ModData_CheckLabelCoords.h"
#include "groups/shapes/OneWrite.h"

#include <algorithm>
#include <optional>

namespace {

constexpr long csgs = 1;
constexpr long tvRegions = 2;

bool run(const std::string& statement) {
    return onSystemDatabase([&] { systemDatabase().execute(statement); });
}

/// The heights between which the members of one group lie, whole map units.
struct GroupHeights {
    std::string name;
    std::int32_t top;
    std::int32_t bottom;
};

/// Walks members group by group and moves the label of each group onto one of its members.
class LabelWalk {
public:
    explicit LabelWalk(std::string shapeTable) : shapeTable_(std::move(shapeTable)) {}

    enum class Outcome { Done, NoRows, Failed };

    /// The members must be sorted by group.
    Outcome walk(const std::string& members) {
        std::shared_ptr<Recordset> rows;
        if (!onSystemDatabase([&] { rows = systemDatabase().openRecordset(members); }))
            return Outcome::Failed;
        if (rows->EOF_())
            return Outcome::NoRows;
        std::optional<GroupHeights> group;
        for (; !rows->EOF_(); rows->MoveNext()) {
            if (group && !equalText(group->name, rows->value("GroupName").asText())) {
                if (!moveLabel(*group))
                    return Outcome::Failed;
                group.reset();
            }
            // A member without a place does not count.
            logAndGoOn([&] { include(*rows, group); });
        }
        return !group || moveLabel(*group) ? Outcome::Done : Outcome::Failed;
    }

private:
    static void include(const Recordset& rows, std::optional<GroupHeights>& group) {
        const std::int32_t top = wholeUnits(rows, "bounduppy");
        const std::int32_t bottom = wholeUnits(rows, "boundlowy");
        if (!group)
            group = GroupHeights{rows.value("GroupName").asText(), top, bottom};
        group->top = std::max(group->top, top);
        group->bottom = std::min(group->bottom, bottom);
    }

    bool moveLabel(const GroupHeights& group) {
        const std::int32_t targetY = middle(group.bottom, group.top);
        if (ModData_CheckLabelCoords(group.name, shapeTable_, targetY, labelY_, labelX_, grsData2) != 0)
            return false;
        run("UPDATE PNT_GROUPS SET XCoord = " + std::to_string(labelX_) + ", YCoord = " + std::to_string(labelY_) +
            " WHERE Name = " + quoted(group.name));
        progress().yield();
        return true;
    }

    std::string shapeTable_;
    std::int32_t labelX_ = 0; ///< stays that of the group before where a group has no member with a place
    std::int32_t labelY_ = 0;
};

const std::string inNamedGroup = " and groupname is not null and groupname <> ''";

std::string membersWithPlaces(const std::string& shapeTable) {
    return selectMembers(shapeTable) + inNamedGroup + " and reference not in " + std::string(CallAreas) +
           " ORDER BY TblGroup_Link.GroupName";
}

std::string groupsOfCallAreasAlone(const std::string& shapeTable) {
    const std::string callAreas(CallAreas);
    return selectMembers(shapeTable) + inNamedGroup + " and reference in " + callAreas +
           "  and GroupName not IN (SELECT TblGroup_Link.GroupName FROM TblGroup_Link where tallyaccount = " +
           quoted(gsAccount) + inNamedGroup + " and reference not in " + callAreas +
           ") ORDER BY TblGroup_Link.GroupName";
}

void startInTheMiddle() {
    run("DELETE FROM PNT_GROUPS");
    run("INSERT INTO PNT_GROUPS ( TALLYACCOUNT, Name, PointID, XCoord, YCoord ) SELECT PGN_GROUPS.TALLYACCOUNT, "
        "GroupName, PolygonID, CenterX, CenterY FROM PGN_GROUPS WHERE TALLYACCOUNT = " +
        quoted(gsAccount));
}

void copyGroupsWithoutCallAreas() {
    ignoreErrors([] { systemDatabase().execute("DROP TABLE TblGroup_LabelName_Temp"); });
    run("SELECT TblGroup_Link.* INTO TblGroup_LabelName_Temp FROM TblGroup_Link WHERE TALLYACCOUNT = " +
        quoted(gsAccount) + " AND GroupName <> '' AND GroupName IS NOT NULL");
    run("delete from TblGroup_LabelName_Temp where groupname in (select groupname from tblgroup_link where reference "
        "in ('VOIP', 'INTERNATIONAL', 'OTHER', 'MOBILE') AND tallyaccount = " +
        quoted(gsAccount) + ")");
}

std::string copiedMembers(const std::string& shapeTable) {
    return joinMembers("TblGroup_LabelName_Temp", shapeTable) + " ORDER BY TblGroup_LabelName_Temp.GroupName";
}

/// The three walks over the members: of groups with areas, of groups of call areas alone, of groups without call areas.
void moveLabels(const std::string& shapeTable) {
    LabelWalk labels(shapeTable);
    if (labels.walk(membersWithPlaces(shapeTable)) != LabelWalk::Outcome::Done)
        return;
    if (labels.walk(groupsOfCallAreasAlone(shapeTable)) == LabelWalk::Outcome::Failed)
        return;
    copyGroupsWithoutCallAreas();
    labels.walk(copiedMembers(shapeTable));
}

} // namespace

void ModData_UpdateGroupLabels(long DataType) {
    const CurrentProcedure procedure("ModData_UpdateGroupLabels");
    inOneWrite([DataType] {
        startInTheMiddle();
        moveLabels(DataType == tvRegions ? "PGN_TV" : DataType == csgs ? "PGN_CSG" : "PGN_POSTCODEDISTRICT");
    });
}
