#include "stats/ModData_UpdateCallDataByPopulationDensity.h"
#include "stats/ModUtilities_CreateAverageCallsTables.h"
#include "stats/ModUtilities_GetPayphoneStatistics.h"
#include "stats/SelectionState.h"
#include "tests/stats/BoundaryProject.h"

#include <gtest/gtest.h>

namespace {

class DerivedMeasures : public testing::Test {
protected:
    void TearDown() override { FilterActive = false; }

    /// An area with 10 calls, 3 of them answered, cost of 6 pounds, one lost caller, and as many people; "null": an
    /// area whose population is not known.
    static void addArea(const std::string& table, const std::string& key, const std::string& area,
                        const std::string& population) {
        gdbSystem->execute("INSERT INTO " + table + " (" + key +
                           ", TotalCalls1, Answered1, Ineffective1, Cost1, Revenue1, Engaged1, RTNR1, Other1, "
                           "LostCallers1, AnsweredCallers1) VALUES ('" +
                           area + "', 10, 3, 7, 6, 0, 0, 7, 0, 1, NULL)");
        if (population != "null")
            gdbSystem->execute(
                "INSERT INTO " +
                std::string(key == "TVRegion" ? "tblTVPopulationDensity" : "tblPostCodePopulationDensity") +
                " (Reference, Population) VALUES ('" + area + "', " + population + ")");
    }
    /// Rates in millionths of a millionth.
    static Rows rates(const std::string& table, const std::string& key) {
        return rowsOf(*gdbSystem, "SELECT " + key +
                                      ", Round(TotalCalls1 * 1000000000000, 0), Round(Answered1 * 1000000000000, 0), "
                                      "Round(Cost1 * 1000000000000, 0), Round(LostCallers1 * 1000000000000, 0), "
                                      "AnsweredCallers1 FROM " +
                                      table + " ORDER BY " + key);
    }

    BoundaryProject project;
};

TEST_F(DerivedMeasures, RatesAreCallsForEachHeadOfPopulation) {
    for (const auto& [figures, rateTable, key] :
         {std::array<std::string, 3>{"TblTV", "tblTVByPopulation", "TVRegion"},
          std::array<std::string, 3>{"TblPostCodeDistrict", "tblPostCodeByPopulation", "PostCodeDistrict"}}) {
        addArea(figures, key, "few people", "30");
        addArea(figures, key, "many people", "300000");
        addArea(figures, key, "nobody", "0");
        addArea(figures, key, "unknown", "null");
        gdbSystem->execute("INSERT INTO " + rateTable + " (" + key + ", TotalCalls1) VALUES ('left from before', 1)");
        EXPECT_EQ(ModData_UpdateCallDataByPopulationDensity(), 0);
        EXPECT_EQ(rates(rateTable, key),
                  (Rows{"few people|333333333333|100000000000|200000000000|33333333333|0",
                        // Tiny rates have eight decimals, and that of lost callers is the one of answered calls.
                        "many people|33330000|10000000|20000000|10000000|0", "nobody|0|0|0|0|0", "unknown|0|0|0|0|0"}))
            << figures;
    }
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST_F(DerivedMeasures, AFailedStatementIsReportedAndTheOthersAreRun) {
    addArea("TblPostCodeDistrict", "PostCodeDistrict", "LS1", "30");
    gdbSystem->execute("DROP TABLE tblTVPopulationDensity");
    EXPECT_EQ(ModData_UpdateCallDataByPopulationDensity(), -1);
    EXPECT_EQ(rates("tblPostCodeByPopulation", "PostCodeDistrict").size(), 1U);
    EXPECT_EQ(project.logLinesWith("\"ModData_UpdateCallDataByPopulationDensity\""), 1);
}

TEST_F(DerivedMeasures, AveragesAreCallsForEachCaller) {
    project.addAllCalls();
    ModData_SelectedTVArea("TblTV", 1);
    ModData_SelectedPostCodeData("TblPostCodeDistrict", 1);
    gdbSystem->execute("UPDATE TblPostCodeDistrict SET AverageCalls1 = NULL WHERE PostCodeDistrict = 'LS9'");
    ModUtilities_CreateAverageCallsTables();
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT TVRegion, Round(AverageCalls1, 4) FROM TblTV ORDER BY TVRegion"),
              (Rows{"International|0", "Mobile|1", "Other|0", "Republic Of Ireland|0", "VOIP|1", "Yorkshire|1.6667"}));
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT PostCodeDistrict, AverageCalls1 FROM TblPostCodeDistrict WHERE "
                                 "PostCodeDistrict IN ('LS1', 'S1', 'LS9', 'Mobile') ORDER BY PostCodeDistrict"),
              (Rows{"LS1|1.5", "LS9|0", "Mobile|1", "S1|2"}));
    for (const char* table : {"tblTVAverageCalls", "tblPostCodeAverageCalls"})
        EXPECT_EQ(gdbSystem->tableDefs().find(table), nullptr) << table;
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST_F(DerivedMeasures, AveragesOfASelectionGoToTheSelectedTables) {
    project.addAllCalls();
    project.addCalls({{"B", "0113", "0", 0, 1, "12:00:00", "0800", "Leeds", "D2"}});
    ModData_SelectedTVArea("TblTV", 1);
    FilterActive = true;
    SelectionSql = " CallDate = #1/1/2025# AND TblTeleItem.NetAddress LIKE 'D1' ";
    ModData_SelectedTVArea("TblSelectedDataForTV", 1);
    ModData_SelectedPostCodeData("TblSelectedDataForPostCodeDistrict", 1);
    ModUtilities_CreateAverageCallsTables();
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT AverageCalls1 FROM TblSelectedDataForTV WHERE TVRegion = 'Yorkshire'"), "1.5")
        << "A twice and C once; B had another destination";
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT AverageCalls1 FROM TblSelectedDataForPostCodeDistrict WHERE "
                                  "PostCodeDistrict = 'LS1'"),
              "2");
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT AverageCalls1 FROM TblTV WHERE TVRegion = 'Yorkshire'"), "0");
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST_F(DerivedMeasures, PayphonesAreCountedByCalls) {
    project.addAllCalls();
    const auto figure = [](const char* name) {
        double value = -1;
        ModUtilities_GetPayphoneStatistics(name, value);
        return value;
    };
    EXPECT_EQ(figure("TotalCalls"), 0) << "no payphone calls";
    EXPECT_EQ(figure("Cost"), 0);
    gdbProject->execute("UPDATE TblTeleItem SET PayPhone = 'P' WHERE [1141] IN ('0113', '0114')");
    struct Expected {
        const char* name;
        double value;
    };
    for (const Expected& expected :
         {Expected{"TotalCalls", 5}, Expected{"Answered", 2}, Expected{"Ineffective", 3}, Expected{"Cost", 2.35},
          Expected{"Revenue", 1.65}, Expected{"Engaged", 2}, Expected{"RTNR", 1}, Expected{"Other", 0},
          Expected{"LostCallers", 3}, Expected{"AnsweredCallers", 2}})
        EXPECT_DOUBLE_EQ(figure(expected.name), expected.value) << expected.name;
    SelectionSql = " CallDate = #1/2/2025# AND TblTeleItem.NetAddress LIKE 'D1' ";
    EXPECT_EQ(figure("TotalCalls"), 2);
    EXPECT_EQ(project.logLines(), Rows{});
    EXPECT_EQ(figure("AverageCalls"), 0);
    EXPECT_EQ(project.logLinesWith("\"ModUtilities_GetPayphoneStatistics\""), 1) << "no such figure";
}

} // namespace
