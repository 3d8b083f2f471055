#include "stats/ModData_UpdateSpecialRows.h"

#include "tests/stats/TVStatistics.h"

#include <gtest/gtest.h>

namespace {

/// SelectedData as a run over CSGs leaves it, with one caller of each kind.
void makeSelectedCsgData() {
    gdbProject->execute(
        "CREATE TABLE SelectedData (CalledNo Text(20), AnswerInd Text(2), Discounted Currency, CSG Text(50))");
    for (const char* row : {"'0', 1.5, '0'", "'4', -0.25, '0'", "'8', 0, 'MOBILE'", "'2', -2, 'OLO'",
                            "'x', 0.125, 'OLO'", "'0', 7, '0171'"})
        gdbProject->execute(std::string("INSERT INTO SelectedData (AnswerInd, Discounted, CSG) VALUES (") + row + ")");
    for (const char* table : {"TblAnsweredCallers", "TblLostCallers"})
        gdbProject->execute(std::string("CREATE TABLE ") + table + " (CallingNo Text(20), CSG Text(50))");
    for (const char* caller : {"'1', 'MOBILE'", "'2', 'MOBILE'", "'3', 'VOIP'", "'4', '0171'"})
        gdbProject->execute(std::string("INSERT INTO TblAnsweredCallers VALUES (") + caller + ")");
}

Rows csgRows() {
    return rowsOf(*gdbSystem, "SELECT CSG, TotalCalls1, Answered1, Ineffective1, Cost1, Revenue1, Engaged1, RTNR1, "
                              "Other1, LostCallers1, AnsweredCallers1 FROM TblSelectedDataForCSG ORDER BY CSG");
}

TEST(UpdateSpecialRows, AbroadIsCodeZeroAmongCsgs) {
    const SmallInstallation installation;
    makeSelectedCsgData();
    gdbSystem->execute("INSERT INTO TblSelectedDataForCSG (CSG, TotalCalls1) VALUES ('OTHER', 99)");
    gdbSystem->execute("INSERT INTO TblSelectedDataForCSG (CSG, TotalCalls1) VALUES ('0171', 1)");
    ModData_UpdateSpecialRows("TblSelectedDataForCSG", 1);
    EXPECT_EQ(csgRows(),
              (Rows{"0171|1|null|null|null|null|null|null|null|null|null", "International|2|1|1|1.5|0.25|0|1|0|0|0",
                    "Mobile|1|1|0|0|0|0|0|0|0|2", "Other|2|0|2|0.125|2|1|0|1|0|0", "VOIP|0|0|0|0|0|0|0|0|0|1"}));
    EXPECT_EQ(installation.logLines(), Rows{});
}

TEST(UpdateSpecialRows, CallersAreAddedToWhatTheRowHolds) {
    const SmallInstallation installation;
    gdbProject->execute("CREATE TABLE SelectedData (AnswerInd Text(2), Discounted Currency, TVArea Text(50))");
    for (const char* table : {"TblAnsweredCallers", "TblLostCallers"}) {
        gdbProject->execute(std::string("CREATE TABLE ") + table + " (CallingNo Text(20), TVArea Text(50))");
        gdbProject->execute(std::string("INSERT INTO ") + table + " VALUES ('1', 'Mobile')");
    }
    gdbSystem->execute(
        "INSERT INTO TblSelectedDataForTV (TVRegion, TotalCalls3, AnsweredCallers3, LostCallers3) VALUES "
        "('Mobile', 8, 5, 4)");
    ModData_UpdateSpecialRows("TblSelectedDataForTV", 3);
    EXPECT_EQ(
        rowsOf(*gdbSystem, "SELECT TVRegion, TotalCalls3, AnsweredCallers3, LostCallers3 FROM TblSelectedDataForTV"),
        Rows{"Mobile|0|6|5"})
        << "no row is made from the third period on";
}

TEST(UpdateSpecialRows, NewRowsAreZeroInEveryPeriodOfTheirTable) {
    const SmallInstallation installation;
    struct Table {
        const char* name;
        const char* key;
        const char* lastColumn;
    };
    for (const Table& table :
         {Table{"TblTV", "TVRegion", "AnsweredCallers1"}, Table{"TblAnimatedTV1", "TVRegion", "AnsweredCallers5"},
          Table{"TblSelectedDataForTV", "TVRegion", "AreaCostPerAnsweredCaller"},
          Table{"TblSelectedDataForPostCodeDistrict", "PostCodeDistrict", "AnsweredCallers7"}}) {
        ModData_UpdateSpecialRows(table.name, 1);
        EXPECT_EQ(rowsOf(*gdbSystem, std::string("SELECT ") + table.key + ", " + table.lastColumn + " FROM " +
                                         table.name + " ORDER BY " + table.key),
                  (Rows{"International|0", "Mobile|0", "Other|0", "VOIP|0"}))
            << table.name;
    }
}

TEST(UpdateSpecialRows, ATableWithoutSidePanelsIsLeftAlone) {
    const SmallInstallation installation;
    gdbSystem->execute("INSERT INTO TblCustomerGroups (GroupName) VALUES ('Other')");
    ModData_UpdateSpecialRows("TblCustomerGroups", 1);
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT Count(*) FROM TblCustomerGroups"), "1");
    EXPECT_EQ(installation.logLinesWith("TblCustomerGroups"), 1);
}

} // namespace
