#include "core/ModDeclarations.h"
#include "data/project/BoundaryDate.h"
#include "data/project/CreateLinkTables.h"
#include "data/project/SetPopulationFlags.h"
#include "data/project/UpdateMappingGISTable.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

namespace {

using Rows = std::vector<std::string>;

/// The project's geography as Callscope wrote it, and an outdated copy as this program works with it.
class Geography : public testing::Test {
protected:
    void SetUp() override {
        installation.addPlaces({{"0111", "T", "ASHFORD"}, {"0112", "T", "ASHFORD"}, {"0121", "T", "DOVER"}}, "TblGIS");
        installation.addPlaces({{"0999", "T", "OUTDATED"}});
        gdbSystem->execute("INSERT INTO PGN_EXCHANGEAREA (Name, GROUP_1141) VALUES ('ASHFORD (Kent)', '011')");
        gdbSystem->execute("INSERT INTO PGN_EXCHANGEAREA (Name, GROUP_1141) VALUES ('DOVER HARBOUR', '012')");
    }
    static void setDate(Database& database, const char* date) {
        database.execute(std::string("INSERT INTO TblSettings VALUES (#") + date + "#)");
    }
    static Rows exchanges() {
        return rowsOf(*gdbProject, "SELECT [1141], Exchange FROM TblMappingGIS ORDER BY [1141]");
    }
    static std::string dateOfProject() { return valueOf(*gdbProject, "SELECT BoundaryDate FROM TblSettings"); }

    const Rows outdated{"0999|OUTDATED"};
    const Rows renewed{"0111|ASHFORD (Kent)", "0112|ASHFORD (Kent)", "0121|DOVER"};
    SmallInstallation installation;
    ScriptedPrompts prompts;
};

TEST_F(Geography, IsTakenAnewFromANewerSystem) {
    setDate(*gdbSystem, "6/2/2024");
    setDate(*gdbProject, "6/1/2024");
    EXPECT_EQ(ModUtilities_UpdateMappingGISTable(*gdbProject), 0);
    EXPECT_EQ(exchanges(), renewed) << "only names with a qualifier in brackets take part";
    EXPECT_EQ(dateOfProject(), Value(today()).asText());
    EXPECT_EQ(installation.logLines(), Rows{});
}

TEST_F(Geography, StaysWhereTheSystemIsNoNewer) {
    setDate(*gdbSystem, "6/1/2024");
    setDate(*gdbProject, "6/1/2024");
    EXPECT_EQ(ModUtilities_UpdateMappingGISTable(*gdbProject), 0);
    EXPECT_EQ(exchanges(), outdated);
    EXPECT_EQ(dateOfProject(), "01/06/2024");
}

TEST_F(Geography, OfAProjectWithoutADateIsOlderThanAnySystem) {
    gdbProject->execute("DROP TABLE TblSettings");
    setDate(*gdbSystem, "6/1/2024");
    EXPECT_EQ(ModUtilities_UpdateMappingGISTable(*gdbProject), 0);
    EXPECT_EQ(exchanges(), renewed);
    EXPECT_EQ(dateOfProject(), Value(today()).asText());
}

TEST_F(Geography, OfASystemWithoutADateIsOlderThanAnyDatedProject) {
    setDate(*gdbProject, "6/1/2024");
    gdbSystem->execute("DROP TABLE TblSettings");
    EXPECT_EQ(ModUtilities_UpdateMappingGISTable(*gdbProject), 0);
    EXPECT_EQ(exchanges(), outdated);
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT BoundaryDate FROM TblSettings"), Value(today()).asText());

    // The system now has a date: today's, which is later than the project's.
    EXPECT_EQ(ModUtilities_UpdateMappingGISTable(*gdbProject), 0);
    EXPECT_EQ(exchanges(), renewed);
}

TEST_F(Geography, UndatedOnBothSidesIsTakenAnew) {
    EXPECT_EQ(ModUtilities_UpdateMappingGISTable(*gdbProject), 0);
    EXPECT_EQ(exchanges(), renewed);
}

TEST_F(Geography, IsKeptWhereTheNewOneCannotBeMade) {
    setDate(*gdbSystem, "6/2/2024");
    setDate(*gdbProject, "6/1/2024");
    gdbSystem->execute("DROP TABLE PGN_EXCHANGEAREA");
    EXPECT_EQ(ModUtilities_UpdateMappingGISTable(*gdbProject), -1);
    EXPECT_EQ(exchanges(), outdated);
    EXPECT_EQ(dateOfProject(), "01/06/2024");
    EXPECT_EQ(installation.logLinesWith("\"ModUtilities_UpdateMappingGISTable\""), 1);
}

TEST_F(Geography, DatesAreWrittenIntoANewTableAndOverAnOldOne) {
    gdbSystem->execute("DROP TABLE TblSettings");
    EXPECT_EQ(ModData_UpdateSystemBoundaryDate(*gdbSystem, dateOf({.year = 2024, .month = 2, .day = 29})), 0);
    EXPECT_EQ(ModData_UpdateSystemBoundaryDate(*gdbSystem, dateOf({.year = 2025, .month = 9, .day = 1})), 0);
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT BoundaryDate FROM TblSettings"), Rows{"01/09/2025"});
    gdbSystem->close();
    EXPECT_EQ(ModData_UpdateSystemBoundaryDate(*gdbSystem, Date{}), -1);
    EXPECT_EQ(boundaryDateText(dateOf({.year = 2025, .month = 1, .day = 5})), "05/Jan/2025");
}

TEST_F(Geography, LinksTieTheProjectToTheSystem) {
    gdbProject->execute("CREATE TABLE TblGroups (TallyAccount Text(50))");
    gdbSystem->execute("INSERT INTO TblLookup1141 ([1141], Exchange) VALUES ('0121', 'DOVER EAST')");
    for (int opening = 1; opening <= 2; ++opening) {
        EXPECT_EQ(ModUtilities_CreateLinkTables(), 0) << opening;
        EXPECT_EQ(valueOf(*gdbSystem, "SELECT Exchange FROM TblGIS_Link WHERE [1141] = '0121'"), "DOVER EAST");
        EXPECT_EQ(valueOf(*gdbSystem, "SELECT Count(*) FROM TblTeleItem_Link"), "0");
    }
    const TableDef* link = gdbSystem->tableDefs().find("TblTeleItem_Link");
    ASSERT_NE(link, nullptr);
    EXPECT_EQ(link->connect, "MS Access;DATABASE=" + installation.file("project.mdb") + ";PWD=QzMarlKey");
    EXPECT_EQ(installation.logLines(), Rows{});
}

TEST_F(Geography, LinkingGoesOnAfterAFailedRefreshAndFailsWithoutASource) {
    setDate(*gdbProject, "6/1/2024");
    gdbProject->execute("DROP TABLE TblGIS");
    setDate(*gdbSystem, "6/2/2024");
    EXPECT_EQ(ModUtilities_CreateLinkTables(), 0) << "the old geography is still there to be linked";
    EXPECT_EQ(prompts.texts, Rows{"An error occurred updating the Mapping GIS table"});

    gdbProject->execute("DROP TABLE TblMappingGIS");
    EXPECT_NE(ModUtilities_CreateLinkTables(), 0);
    EXPECT_GT(installation.logLinesWith("\"ModUtilities_CreateLinkTables\""), 0);
}

TEST_F(Geography, PopulationFlagsTellWhichFiguresThereAre) {
    gbTVPopulation = true;
    gdbSystem->execute("INSERT INTO tblPostCodePopulationDensity VALUES ('LS1', 1000)");
    SetPopulationFlags();
    EXPECT_FALSE(gbTVPopulation);
    EXPECT_TRUE(gbPostCodePopulation);
}

} // namespace
