#include "groups/shapes/ModData_Merge.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/RuntimeError.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "groups/shapes/MergePass.h"
#include "groups/shapes/OneWrite.h"

std::string MergeGroupName;
std::int16_t MergePolygonID = 0;
std::int16_t MergeStep = 0;
std::int16_t MergeStepTotal = 0;

namespace {

constexpr long DamagedData = 3049;

void run(const std::string& statement) {
    onSystemDatabase([&] { systemDatabase().execute(statement); });
}

/// The first columns of a row of either table.
std::string groupValues() {
    return quoted(gsAccount) + ", " + quoted(MergeGroupName) + ", " + std::to_string(MergePolygonID);
}

/// `label`: what stands behind the group in the statement that writes its label point.
void writeGroup(const std::string& label) {
    run("DELETE FROM PGN_GROUPS WHERE GroupName = " + quoted(MergeGroupName));
    run("INSERT INTO PGN_GROUPS (TALLYACCOUNT, GROUPNAME, POLYGONID, NUMVERT, BOUNDLOWX, BOUNDLOWY, BOUNDUPPX, "
        "BOUNDUPPY, CENTERX, CENTERY, VERTICES, NUMPARTS, PARTS ) SELECT " +
        groupValues() +
        ", PGN_TEMP.NUMVERT, PGN_TEMP.BOUNDLOWX, PGN_TEMP.BOUNDLOWY, PGN_TEMP.BOUNDUPPX, PGN_TEMP.BOUNDUPPY, "
        "PGN_TEMP.CENTERX, PGN_TEMP.CENTERY, PGN_TEMP.VERTICES, PGN_TEMP.NUMPARTS, PGN_TEMP.PARTS FROM PGN_TEMP");
    run("DELETE FROM PNT_GROUPS WHERE Name = " + quoted(MergeGroupName));
    run("INSERT INTO PNT_GROUPS (TALLYACCOUNT, NAME, POINTID, XCOORD, YCOORD) " + label);
}

void storeGroup(const std::string& label) {
    inOneWrite([&] { writeGroup(label); });
}

void storeOnlyArea() {
    storeGroup("SELECT " + groupValues() + ", CenterX , CenterY FROM PGN_TEMP");
}

void storeUnion(const PolygonMerger& merged) {
    if (merged.NumVert() == 0) {
        logAndGoOn([] {
            throw RuntimeError(DamagedData,
                               "Group \"" + MergeGroupName +
                                   "\" keeps the shape it had: none of its areas has one that can be read.");
        });
        return;
    }
    storeGroup("VALUES (" + groupValues() + ", " + shortestText(merged.CenterX()) + ", " +
               shortestText(merged.CenterY()) + ")");
}

} // namespace

void ModData_Merge(const Caption& StatusLabel) {
    const CurrentProcedure procedure("ModData_Merge");
    std::shared_ptr<Recordset> rows;
    if (!onSystemDatabase([&] { rows = systemDatabase().openRecordset("SELECT * FROM PGN_Temp"); }) || rows->EOF_())
        return;
    ++MergeStep;
    if (rows->RecordCount() == 1) {
        storeOnlyArea();
        return;
    }
    MergePass pass(*rows, StatusLabel);
    pass.uniteRows();
    rows->Close();
    if (!pass.replaceRows())
        return;
    if (pass.pairs() == 1)
        storeUnion(pass.lastUnion());
    else
        ModData_Merge(StatusLabel);
}
