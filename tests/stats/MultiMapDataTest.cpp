#include "stats/ModData_GetMultiMapData.h"

#include "stats/CurrentTables.h"
#include "stats/MapMaxima.h"
#include "stats/SelectionState.h"
#include "stats/StatsProgress.h"
#include "tests/stats/BoundaryProject.h"

#include <gtest/gtest.h>

namespace {

class MultiMapData : public testing::Test {
protected:
    void SetUp() override {
        project.addAllCalls();
        // Range n is the day n of January; the second of them in the afternoon only.
        for (std::size_t range = 0; range < 6; ++range) {
            const Date day = parseDate(std::to_string(range + 1) + "/01/2025");
            ranges.DTPicker1[range * 4] = ranges.DTPicker1[range * 4 + 2] = day;
            ranges.DTPicker1[range * 4 + 3] = Date{86399.0 / 86400.0};
        }
        ranges.DTPicker1[5] = Date{0.75};
        mapMaxima = {};
        currentTables.clear();
    }
    void TearDown() override {
        mapMaxima = {};
        currentTables.clear();
        GroupLimitExceeded = false;
        StatsProgressStep = StatsProgressMaximum = 0;
    }

    Rows totals(const std::string& table, const std::string& key) {
        return rowsOf(*gdbSystem,
                      "SELECT TotalCalls2, TotalCalls3, TotalCalls4, TotalCalls6 FROM " + table + " WHERE " + key);
    }

    BoundaryProject project;
    ReportParameters parameters;
    MultiMapParameters ranges;
};

TEST_F(MultiMapData, EachRangeHasAPeriodAndAllShareOneScale) {
    project.addCalls({{"D", "0113", "0", 9.00, 2, "18:30:00"}});
    currentTables.TV = "TblSelectedDataForTV";
    mapMaxima.MaxTotalCalls = 99;
    ModData_GetMultiMapData(parameters, ranges, true);
    EXPECT_EQ(totals("TblSelectedDataForTV", "TVRegion = 'Yorkshire'"), Rows{"3|1|0|0"});
    EXPECT_EQ(mapMaxima.MaxTotalCalls, 3);
    EXPECT_EQ(mapMaxima.MaxCost, 9) << "of the second range";
    EXPECT_EQ(StatsProgressMaximum, 8);
    EXPECT_EQ(project.logLinesWith("\"ModData_SelectedTVArea\""), 0);
}

TEST_F(MultiMapData, FourMapsOfDistrictsFillPeriodsTwoToFiveOnly) {
    currentTables.PostCodeDistrict = "TblSelectedDataForPostCodeDistrict";
    ranges.OptPeriods = 2;
    ModData_GetMultiMapData(parameters, ranges, true);
    for (std::size_t range = 2; range < 6; ++range)
        ranges.DTPicker1[range * 4] = Date{ranges.DTPicker1[0]}; // from the first day on
    ranges.OptPeriods = 1;
    ModData_GetMultiMapData(parameters, ranges, true);
    // The two calls of the second day were before the evening of the second range.
    EXPECT_EQ(totals("TblSelectedDataForPostCodeDistrict", "PostCodeDistrict = 'LS1'"), Rows{"2|0|3|0"})
        << "the sixth map keeps what it had";
}

TEST_F(MultiMapData, FiguresThatStandAreOnlyLookedThroughForTheScale) {
    currentTables.TV = "TblSelectedDataForTV";
    gdbSystem->execute("INSERT INTO TblSelectedDataForTV (TVRegion, TotalCalls2, TotalCalls3, TotalCalls4) VALUES "
                       "('Yorkshire', 5, 7, 70)");
    parameters.cmbDestinationNo = "D1";
    ModData_GetMultiMapData(parameters, ranges, false);
    EXPECT_EQ(totals("TblSelectedDataForTV", "TVRegion = 'Yorkshire'"), Rows{"5|7|70|null"});
    EXPECT_EQ(mapMaxima.MaxTotalCalls, 7) << "two maps do not read the fourth period";
    EXPECT_EQ(SelectionDescription, "Destination ID = D1") << "the selection is built all the same";
    EXPECT_NE(SelectionSql.find("01/02/2025"), std::string::npos) << SelectionSql;
}

/// What the bar of a report was told.
class BarProgress : public Progress {
public:
    BarProgress() { setProgress(this); }
    ~BarProgress() override { setProgress(nullptr); }
    void setReportBar(bool visible, long maximum, long value) override {
        told.push_back((visible ? "" : "hidden ") + std::to_string(value) + "/" + std::to_string(maximum));
    }
    void yield() override {
        if (told.empty() || told.back() != "yield")
            told.emplace_back("yield");
    }
    Rows told;
};

TEST_F(MultiMapData, TheBarGoesOnByFourStepsAMapAndNotBeyondItsEnd) {
    currentTables.TV = "TblSelectedDataForTV";
    BarProgress bar;
    ModData_GetMultiMapData(parameters, ranges, false);
    EXPECT_EQ(bar.told, (Rows{"hidden 1/8", "yield", "hidden 2/8", "yield"})) << "nothing to be counted";
    bar.told.clear();
    ModData_GetMultiMapData(parameters, ranges, true);
    Rows expected;
    for (const char* value : {"1/8", "1/8", "2/8", "3/8", "4/8", "5/8"})
        expected.insert(expected.end(), {value, "yield"});
    expected.insert(expected.end(), {"hidden 5/8"});
    for (const char* value : {"6/8", "6/8", "7/8", "8/8"})
        expected.insert(expected.end(), {value, "yield"});
    expected.insert(expected.end(), {"hidden 8/8"});
    EXPECT_EQ(bar.told, expected);
}

TEST_F(MultiMapData, ATooLargeGroupEndsItAtOnce) {
    const auto groups =
        defaultWorkspace()->openDatabase(project.file("CustomerGroups.mdb"), Workspace::Access::Shared, ProjectConnect);
    WorkspaceTransaction rows(*defaultWorkspace());
    for (int number = 0; number <= 1500; ++number)
        groups->execute("INSERT INTO tblCommunityGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', '" +
                        std::to_string(number) + "', 'Large')");
    rows.commit();
    currentTables.TV = "TblSelectedDataForTV";
    parameters.OptInbound = 2;
    parameters.cmbCG = "Large";
    ModData_GetMultiMapData(parameters, ranges, true);
    EXPECT_EQ(project.prompts.texts.size(), 1U) << "not once for each range";
    EXPECT_FALSE(GroupLimitExceeded);
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT Count(*) FROM TblSelectedDataForTV"), "0");
}

} // namespace
