#include "stats/ModData_SelectedCustomerGroups.h"
#include "stats/StatsProgress.h"
#include "tests/stats/BoundaryProject.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/// All that a run tells, in words: texts as they are, "bar value/maximum", "report value/maximum" or "report hidden",
/// "hourglass on", "hourglass off", "yield".
class ToldProgress : public Progress {
public:
    ToldProgress() { setProgress(this); }
    ~ToldProgress() override { setProgress(nullptr); }
    void setTask(const std::string& text) override { told.push_back(text); }
    void setMessageBar(long maximum, long value) override {
        told.push_back("bar " + std::to_string(value) + "/" + std::to_string(maximum));
    }
    void setReportBar(bool visible, long maximum, long value) override {
        told.push_back(visible ? "report " + std::to_string(value) + "/" + std::to_string(maximum) : "report hidden");
    }
    void setHourglass(bool on) override { told.push_back(on ? "hourglass on" : "hourglass off"); }
    void yield() override { told.push_back("yield"); }

    Rows told;
};

/// Reading the calls yields as often as its time asks for.
Rows withSingleYields(Rows told) {
    const auto isAgain = [](const std::string& a, const std::string& b) { return a == b && a == "yield"; };
    told.erase(std::unique(told.begin(), told.end(), isAgain), told.end());
    return told;
}

class StatisticsProgress : public testing::Test {
protected:
    void SetUp() override {
        project.addAllCalls();
        gdbSystem->execute("INSERT INTO tblMappingGroupSetup_Link (TALLYACCOUNT, DataType) VALUES ('ACC', '3')");
        gdbProject->execute(
            "INSERT INTO TblGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', 'LS1', 'North')");
    }
    void TearDown() override { StatsProgressStep = StatsProgressMaximum = 0; }

    BoundaryProject project;
};

struct Boundary {
    void (*procedure)(const std::string& tableName, int period);
    const char* main;
    const char* selected;
    int stepsOfPeriodOne, stepsOfPeriodThree;
};

constexpr Boundary boundaries[] = {
    {&ModData_SelectedTVArea, "TblTV", "TblSelectedDataForTV", 5, 4},
    {&ModData_SelectedCSGData, "TblCSG", "TblSelectedDataForCSG", 5, 3},
    {&ModData_SelectedExchangeData, "TblExchangeArea", "TblSelectedDataForExchangeArea", 5, 3},
    {&ModData_SelectedPostCodeData, "TblPostCodeDistrict", "TblSelectedDataForPostCodeDistrict", 5, 3},
    {&ModData_SelectedCustomerGroups, "TblCustomerGroups", "TblSelectedDataForCustomerGroups", 4, 3},
};

TEST_F(StatisticsProgress, TheBarOfAMainTableFollowsTheListInHand) {
    ToldProgress progress;
    ModData_SelectedTVArea("TblTV", 1);
    Rows expected{"hourglass on"};
    const auto task = [&](const char* text) {
        for (const char* told : {text, "bar 0/1", "yield"})
            expected.push_back(told);
    };
    const auto list = [&](int rows) {
        for (int row = 0; row < rows; ++row) {
            expected.push_back("bar " + std::to_string(row) + "/" + std::to_string(rows));
            expected.push_back("yield");
        }
    };
    const auto stepDone = [&] { expected.push_back("yield"); };
    task("Updating TV Areas...");
    stepDone();
    list(7);  // areas of the geography, Yorkshire being one
    list(11); // areas and outcomes with calls
    stepDone();
    task("Updating Total Cost By TV Area Statistics...");
    list(6); // areas and outcomes that cost
    task("Updating Total Revenue By TV Area Statistics...");
    list(2);
    stepDone();
    task("Updating Answered Callers By TV Area Statistics...");
    task("Updating Lost Callers By TV Area Statistics...");
    list(3); // areas with lost callers
    list(4);
    stepDone();
    task("Updating 'Other', 'International', 'Mobile' Statistics...");
    stepDone();
    expected.insert(expected.end(), {"report hidden", "hourglass off"});
    EXPECT_EQ(withSingleYields(progress.told), withSingleYields(expected));
}

TEST_F(StatisticsProgress, ASelectedTableMovesTheReportsBarByItsSteps) {
    for (const Boundary& boundary : boundaries) {
        for (const int period : {1, 3}) {
            StatsProgressMaximum = 100;
            StatsProgressStep = 40;
            ToldProgress progress;
            boundary.procedure(boundary.selected, period);
            const long start = period == 1 ? 1 : 40;
            const int steps = period == 1 ? boundary.stepsOfPeriodOne : boundary.stepsOfPeriodThree;
            EXPECT_EQ(StatsProgressStep, start + steps) << boundary.selected << ", period " << period;
            std::erase_if(progress.told, [](const std::string& told) { return !told.starts_with("report"); });
            Rows expected;
            for (int step = 1; step <= steps; ++step)
                expected.push_back("report " + std::to_string(start + step) + "/100");
            expected.push_back("report hidden");
            EXPECT_EQ(progress.told, expected) << boundary.selected << ", period " << period;
        }
    }
}

TEST_F(StatisticsProgress, EveryChangeOfABarIsFollowedByAYield) {
    for (const Boundary& boundary : boundaries) {
        for (const char* table : {boundary.main, boundary.selected}) {
            StatsProgressMaximum = 100;
            ToldProgress progress;
            boundary.procedure(table, 1);
            const Rows& told = progress.told;
            for (std::size_t i = 0; i + 1 < told.size(); ++i) {
                const bool isBar =
                    told[i].starts_with("bar") || (told[i].starts_with("report") && told[i] != "report hidden");
                EXPECT_TRUE(!isBar || told[i + 1] == "yield") << table << " behind " << told[i];
            }
            EXPECT_EQ(told.front(), "hourglass on") << table;
            EXPECT_EQ(told.back(), "hourglass off") << table;
        }
    }
}

} // namespace
