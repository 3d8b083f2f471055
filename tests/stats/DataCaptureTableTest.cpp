#include "stats/ModData_CreateDataCaptureTable.h"

#include "core/ModDeclarations.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

namespace {

TEST(DataCaptureTable, IsMadeInTheSystemMapDatabaseWhichIsOpenAfterwards) {
    const SmallInstallation installation;
    ModData_CreateDataCaptureTable();
    ASSERT_TRUE(gdbSystem && gdbSystem->isOpen());
    const TableDef* table = gdbSystem->tableDefs().find("TblDataCapture");
    ASSERT_NE(table, nullptr);
    const auto name = [&](std::size_t at) { return table->fields[at].name; };
    EXPECT_EQ(name(0), "ProjectName");
    EXPECT_EQ(name(3), "DefaultStartDate");
    EXPECT_EQ(name(5), "StartDate1");
    EXPECT_EQ(name(32), "EndTime7");
    EXPECT_EQ(name(41), "AnimateStartDate");
    EXPECT_EQ(name(48), "SelectedDestinationNo1");
    gdbSystem->execute("INSERT INTO TblDataCapture (ProjectName) VALUES ('')");
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT DefaultStartDate & '' FROM TblDataCapture").empty(), false)
        << "dates have a default";
    EXPECT_TRUE(gdbProject->isOpen());
    EXPECT_EQ(installation.logLines(), std::vector<std::string>{});
}

TEST(DataCaptureTable, FailuresAreToldAndLeaveTheDatabasesOpen) {
    const SmallInstallation installation;
    ScriptedPrompts prompts;
    gdbSystem->execute("INSERT INTO TblSettings (BoundaryDate) VALUES (#1/1/2025#)");
    gdbProject->execute("DROP TABLE TblGIS");
    ModData_CreateDataCaptureTable();
    EXPECT_EQ(prompts.texts, std::vector<std::string>{"An error occurred updating the Exchange GIS data"});

    gsProjectPath = installation.file("moved away.mdb");
    ModData_CreateDataCaptureTable();
    EXPECT_EQ(prompts.texts.back(), "Unable to open Project Database");
    EXPECT_TRUE(gdbSystem->isOpen());
    EXPECT_GE(installation.logLinesWith("\"ModData_CreateDataCaptureTable\""), 2) << "the table was there already";
}

} // namespace
