#include "data/sqlite/Connection.h"
#include "stats/FigureEngine.h"
#include "stats/ModData_SelectedCustomerGroups.h"
#include "tests/stats/BoundaryProject.h"

#include <gtest/gtest.h>

namespace {

struct EngineGuard {
    ~EngineGuard() { setFigureEngine(FigureEngine::Automatic); }
};

struct BoundaryTable {
    void (*procedure)(const std::string& tableName, int period);
    const char* main;
    const char* selected;
    const char* key;
};

constexpr BoundaryTable boundaries[] = {
    {&ModData_SelectedTVArea, "TblTV", "TblSelectedDataForTV", "TVRegion"},
    {&ModData_SelectedCSGData, "TblCSG", "TblSelectedDataForCSG", "CSG"},
    {&ModData_SelectedExchangeData, "TblExchangeArea", "TblSelectedDataForExchangeArea", "Exchange"},
    {&ModData_SelectedPostCodeData, "TblPostCodeDistrict", "TblSelectedDataForPostCodeDistrict", "PostCodeDistrict"},
    {&ModData_SelectedCustomerGroups, "TblCustomerGroups", "TblSelectedDataForCustomerGroups", "GroupName"},
};

/// A project that has met with something, and what it still gives. Figures are those of `figuresOf`.
struct Damage {
    const char* name;
    Rows statements;
    const char* region;   ///< the row of Yorkshire in the main table, or "no row"
    const char* selected; ///< the same for the selection of the calls of a part of the day
    const char* logged;   ///< a part of a line of the log; empty: there is none
};

/// The project with everything right, but for what the statements do to it.
class DamagedProject : public BoundaryProject {
public:
    explicit DamagedProject(const Damage& damage) {
        addAllCalls();
        gdbSystem->execute("INSERT INTO tblMappingGroupSetup_Link (TALLYACCOUNT, DataType) VALUES ('ACC', '3')");
        gdbProject->execute(
            "INSERT INTO TblGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', 'LS1', 'North')");
        for (const std::string& statement : damage.statements)
            gdbProject->execute(statement);
    }

    /// Runs every boundary for the whole project and for a selection; gives all rows.
    Rows figures(FigureEngine engine) {
        setFigureEngine(engine);
        Rows all;
        for (const BoundaryTable& boundary : boundaries) {
            SelectionSql.clear();
            boundary.procedure(boundary.main, 1);
            SelectionSql =
                " CallDate >= #1/1/2025# AND CDate(Left(CallTime,2) & ':' & Mid(CallTime, 4,2)) >= #08:00:00#";
            boundary.procedure(boundary.selected, 1);
            for (const char* table : {boundary.main, boundary.selected}) {
                all.push_back(table);
                for (const std::string& row : figuresOf(table, boundary.key))
                    all.push_back(row);
            }
        }
        return all;
    }
};

std::string regionIn(const char* table) {
    for (const std::string& row : figuresOf(table, "TVRegion")) {
        if (row.starts_with("Yorkshire|"))
            return row.substr(row.find('|') + 1);
    }
    return "no row";
}

const char* const everything = "5|2|3|2.1|0.4|2|1|0|1|2";
const char* const nothing = "0|0|0|0|0|0|0|0|0|0";

TEST(DamagedProjects, GiveTheFiguresThatCanBeHadByEitherSource) {
    const EngineGuard guard;
    const Damage damages[] = {
        {"nothing", {}, everything, everything, ""},
        {"no geography", {"DROP TABLE TblMappingGIS"}, "no row", "no row", "TblMappingGIS"},
        {"no regions", {"ALTER TABLE TblMappingGIS DROP COLUMN TVArea"}, "no row", "no row", "TVArea"},
        {"no calls", {"DROP TABLE TblTeleItem"}, nothing, nothing, "TblTeleItem"},
        {"no codes", {"ALTER TABLE TblTeleItem DROP COLUMN [1141]"}, nothing, nothing, "1141"},
        {"no callers",
         {"ALTER TABLE TblTeleItem DROP COLUMN CallingNo"},
         "5|2|3|2.1|0.4|2|1|0|0|0",
         "5|2|3|2.1|0.4|2|1|0|0|0",
         "CallingNo"},
        {"outcomes that are no numbers",
         {"UPDATE TblTeleItem SET AnswerInd = 'zz' WHERE AnswerInd = '4'"},
         "5|2|3|2.1|1.25|2|0|1|1|2",
         "5|2|3|2.1|1.25|2|0|1|1|2",
         ""},
        {"outcomes as numbers",
         {"UPDATE TblTeleItem SET AnswerInd = '3' WHERE AnswerInd = 'x'",
          "ALTER TABLE TblTeleItem ALTER COLUMN AnswerInd Long"},
         "5|2|3|2.1|0.4|2|1|0|0|0",
         "5|2|3|2.1|0.4|2|1|0|0|0",
         "Data type mismatch"},
        {"money as text",
         {"ALTER TABLE TblTeleItem ALTER COLUMN Discounted Text(20)", "UPDATE TblTeleItem SET Discounted = 'much'"},
         "5|2|3|0|0|2|1|0|1|2",
         "5|2|3|0|0|2|1|0|1|2",
         "Data type mismatch"},
        {"dates as text",
         {"ALTER TABLE TblTeleItem ALTER COLUMN CallDate Text(20)", "UPDATE TblTeleItem SET CallDate = 'one day'"},
         everything,
         nothing,
         "Data type mismatch"},
        {"times that are none",
         {"UPDATE TblTeleItem SET CallTime = 'soon'"},
         everything,
         nothing,
         "Data type mismatch"},
        {"callers as numbers",
         {"UPDATE TblTeleItem SET CallingNo = '17' WHERE NOT CallingNo IS NULL",
          "ALTER TABLE TblTeleItem ALTER COLUMN CallingNo Double"},
         "5|2|3|2.1|0.4|2|1|0|0|1",
         "5|2|3|2.1|0.4|2|1|0|0|1",
         "CallingNo"},
        {"codes of the geography as numbers",
         {"UPDATE TblTeleItem SET [1141] = '113' WHERE [1141] = '0113'",
          "DELETE FROM TblMappingGIS WHERE NOT [1141] IN ('0113', '0114')",
          "ALTER TABLE TblMappingGIS ALTER COLUMN [1141] Long"},
         nothing,
         nothing,
         "Data type mismatch"},
        {"regions as numbers",
         {"DELETE FROM TblMappingGIS WHERE TVArea <> 'Yorkshire'", "UPDATE TblMappingGIS SET TVArea = '7'",
          "ALTER TABLE TblMappingGIS ALTER COLUMN TVArea Long"},
         "no row",
         "no row",
         "Data type mismatch"},
        {"CSGs as numbers",
         {"DELETE FROM TblMappingGIS WHERE NOT CSG IN ('113', '114', '0')",
          "ALTER TABLE TblMappingGIS ALTER COLUMN CSG Long"},
         everything,
         everything,
         "Data type mismatch"},
    };
    for (const Damage& damage : damages) {
        Rows rows[2];
        for (const FigureEngine engine : {FigureEngine::Statements, FigureEngine::Automatic}) {
            DamagedProject project(damage);
            const WorkspaceTransaction neverWritten(*defaultWorkspace()); // nothing of it needs the disk
            rows[engine == FigureEngine::Automatic] = project.figures(engine);
            EXPECT_EQ(regionIn("TblTV"), damage.region) << damage.name;
            EXPECT_EQ(regionIn("TblSelectedDataForTV"), damage.selected) << damage.name;
            if (*damage.logged == 0) {
                EXPECT_EQ(project.logLines(), Rows{}) << damage.name;
            } else if (engine == FigureEngine::Automatic) { // statements alone may have nothing to say against it
                EXPECT_GT(project.logLinesWith(damage.logged), 0) << damage.name;
            }
        }
        EXPECT_EQ(rows[0], rows[1]) << damage.name;
    }
}

/// More codes than the columns of a scan have numbers for.
TEST(DamagedProjects, AMillionCodesAreCountedAllTheSame) {
    BoundaryProject project;
    const std::string schema = gdbProject->schema();
    const std::string numbers = "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 999999) ";
    WorkspaceTransaction rows(*defaultWorkspace());
    gdbProject->connection().execute(numbers + "INSERT INTO " + schema +
                                     ".TblMappingGIS(\"1141\", TVArea) SELECT i, 'Region ' || (i % 4) FROM n");
    // Every caller calls twice, under two codes of one region, and every eighth call is answered.
    gdbProject->connection().execute(numbers + "INSERT INTO " + schema +
                                     ".TblTeleItem(\"1141\", CalledNo, CallingNo, AnswerInd, Discounted) SELECT i, "
                                     "'0800', i / 8 * 4 + i % 4, iif(i % 8 = 0, '0', '4'), 0.5 FROM n");
    rows.commit();
    ModData_SelectedTVArea("TblTV", 1);
    EXPECT_EQ(project.logLinesWith("The column '1141' of 'TblTeleItem' has too many different values"), 1);
    Rows figures = figuresOf("TblTV", "TVRegion");
    std::erase_if(figures, [](const std::string& row) { return !row.starts_with("Region"); });
    EXPECT_EQ(figures, (Rows{"Region 0|250000|125000|125000|62500|0|0|125000|0|0|125000",
                             "Region 1|250000|0|250000|125000|0|0|250000|0|125000|0",
                             "Region 2|250000|0|250000|125000|0|0|250000|0|125000|0",
                             "Region 3|250000|0|250000|125000|0|0|250000|0|125000|0"}));
}

} // namespace
