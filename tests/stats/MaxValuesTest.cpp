#include "stats/ModData_MaxValues.h"

#include "core/ModDeclarations.h"
#include "stats/MapMaxima.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

namespace {

class MaxValues : public testing::Test {
protected:
    void SetUp() override { mapMaxima = {}; }
    void TearDown() override { mapMaxima = {}; }

    SmallInstallation installation;
};

TEST_F(MaxValues, TakesTheLargestOfOnePeriodSidePanelsIncluded) {
    gdbSystem->execute(
        "INSERT INTO TblSelectedDataForTV (TVRegion, TotalCalls2, Answered2, Ineffective2, Cost2, Revenue2, "
        "LostCallers2, AnsweredCallers2, TotalCalls1) VALUES ('London', 10, 4, 6, 1.25, 0.5, 3, 2, 999)");
    gdbSystem->execute(
        "INSERT INTO TblSelectedDataForTV (TVRegion, TotalCalls2, Answered2) VALUES ('Mobile', 30, NULL)");
    ModData_MaxValues("TblSelectedDataForTV", 2);
    EXPECT_EQ(mapMaxima.MaxTotalCalls, 30);
    EXPECT_EQ(mapMaxima.MaxAnswered, 4);
    EXPECT_EQ(mapMaxima.MaxIneffective, 6);
    EXPECT_EQ(mapMaxima.MaxCost, 1.25);
    EXPECT_EQ(mapMaxima.MaxRevenue, 0.5);
    EXPECT_EQ(mapMaxima.MaxLostCallers, 3);
    EXPECT_EQ(mapMaxima.MaxAnsweredCallers, 2);
    // There is no average for later periods: that one is logged and stays.
    EXPECT_EQ(mapMaxima.MaxAverageCalls, 0);
    EXPECT_EQ(installation.logLines().size(), 1U);
}

TEST_F(MaxValues, OnlyRisesUntilARunResetsCallsAndMoney) {
    gdbSystem->execute(
        "INSERT INTO TblTV (TVRegion, TotalCalls1, LostCallers1, AverageCalls1) VALUES ('London', 10, 8, 2.5)");
    ModData_MaxValues("TblTV", 1);
    gdbSystem->execute("UPDATE TblTV SET TotalCalls1 = 4, LostCallers1 = 3, AverageCalls1 = 1");
    ModData_MaxValues("TblTV", 1);
    EXPECT_EQ(mapMaxima.MaxTotalCalls, 10);
    mapMaxima.resetForRun();
    ModData_MaxValues("TblTV", 1);
    EXPECT_EQ(mapMaxima.MaxTotalCalls, 4);
    EXPECT_EQ(mapMaxima.MaxLostCallers, 8);
    EXPECT_EQ(mapMaxima.MaxAverageCalls, 2.5);
    gdbSystem->execute("DELETE FROM TblTV");
    ModData_MaxValues("TblTV", 1);
    EXPECT_EQ(mapMaxima.MaxTotalCalls, 4) << "an empty table leaves the maxima";
    EXPECT_EQ(installation.logLines().size(), 0U);
}

TEST_F(MaxValues, CallersOfOtherTablesAreNotLookedAt) {
    gdbSystem->execute("INSERT INTO TblAnimatedTV1 (TVRegion, Answered5, LostCallers5) VALUES ('London', 7, 9)");
    ModData_MaxValues("TblAnimatedTV1", 5);
    EXPECT_EQ(mapMaxima.MaxAnswered, 7);
    EXPECT_EQ(mapMaxima.MaxLostCallers, 0);
}

TEST_F(MaxValues, OfCustomerGroupsOnlyTheAccountsCount) {
    TableDef link = gdbSystem->createTableDef("TblGroup_Link");
    link.connect = "MS Access;DATABASE=" + installation.file("CustomerGroups.mdb") + ";PWD=QzMarlKey";
    link.sourceTableName = "TblGroups";
    gdbSystem->tableDefs().append(link);
    gdbSystem->execute("INSERT INTO TblGroup_Link (TallyAccount, GroupName) VALUES ('ACC', 'North')");
    gdbSystem->execute("INSERT INTO TblGroup_Link (TallyAccount, GroupName) VALUES ('ELSE', 'South')");
    gdbSystem->execute("INSERT INTO TblCustomerGroups (GroupName, TotalCalls1) VALUES ('North', 5)");
    gdbSystem->execute("INSERT INTO TblCustomerGroups (GroupName, TotalCalls1) VALUES ('South', 50)");
    ModData_MaxValues("TblCustomerGroups", 1);
    EXPECT_EQ(mapMaxima.MaxTotalCalls, 5);
}

TEST_F(MaxValues, AValueTooLargeForItsMaximumIsLogged) {
    gdbSystem->execute("DROP TABLE TblCSG");
    gdbSystem->execute("CREATE TABLE TblCSG (CSG Text(50), TotalCalls1 Double, Answered1 Double, Ineffective1 Double, "
                       "Cost1 Double, Revenue1 Double)");
    gdbSystem->execute("INSERT INTO TblCSG VALUES ('0171', 3000000000, 3000000000, 1, 2, 3)");
    ModData_MaxValues("TblCSG", 1);
    EXPECT_EQ(mapMaxima.MaxTotalCalls, 3e9);
    EXPECT_EQ(mapMaxima.MaxAnswered, 0);
    EXPECT_EQ(mapMaxima.MaxRevenue, 3) << "the others are taken all the same";
    EXPECT_EQ(installation.logLinesWith("\"ModData_MaxValues\",6,"), 1);
}

} // namespace
