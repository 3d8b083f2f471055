#include "stats/ModData_SelectedTVArea.h"

#include "core/Progress.h"
#include "stats/StatsProgress.h"
#include "tests/stats/TVStatistics.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/// All calls of TVProject. Behind the name: calls, answered, ineffective, cost, revenue, engaged, ring tone no reply,
/// other, lost callers, answered callers.
const Rows wholeProject{
    // Two groups have cost beside the one that is kept: '0' 1.50, then '2' 0.25 and '8' 2.00.
    "Granada|3|1|2|0.1|2|2|0|0|1|1",
    "International|3|2|1|5|0|0|0|1|0|2",
    "London|5|2|3|1.5|0.4|1|1|1|1|2",
    // An apostrophe in a name cannot be searched for.
    "Mary's Isle|0|0|0|0|0|0|0|0|0|0",
    "Mobile|2|1|1|0.3|0|0|0|1|1|1",
    "Other|2|1|1|0.05|0|0|1|0|1|1",
    "Republic Of Ireland|0|0|0|0|0|0|0|0|0|0",
    "VOIP|1|0|1|0|0|1|0|0|1|0",
};

TEST(SelectedTVArea, CountsTheWholeProjectIntoTheMainTable) {
    TVProject project;
    project.addAllCalls();
    gdbSystem->execute("INSERT INTO TblTV (TVRegion, TotalCalls1) VALUES ('Left from before', 7)");
    ModData_SelectedTVArea("TblTV", 1);
    EXPECT_EQ(figures("TblTV"), wholeProject);

    // Nothing but the searches for the name with an apostrophe went wrong: calls, cost, answered callers.
    EXPECT_EQ(project.logLines().size(), 3U);
    EXPECT_EQ(project.logLinesWith("\"ModData_SelectedTVArea\""), 3);
    EXPECT_EQ(project.logLinesWith("in: TVRegion = 'Mary's Isle'"), 2);
    EXPECT_EQ(project.logLinesWith("in: UCASE(TVRegion) = 'MARY'S ISLE'"), 1);

    // The first run has brought the project's name to one without the apostrophe, which can be counted.
    Rows second = wholeProject;
    second[3] = "Marys Isle|1|1|0|1|0|0|0|0|0|1";
    ModData_SelectedTVArea("TblTV", 1);
    EXPECT_EQ(figures("TblTV"), second);
}

TEST(SelectedTVArea, LeavesTheWorkingTablesInTheProject) {
    TVProject project;
    project.addAllCalls();
    ModData_SelectedTVArea("TblTV", 1);
    EXPECT_EQ(valueOf(*gdbProject, "SELECT Count(*) FROM SelectedData"), "19")
        << "all calls with a code of the geography";
    EXPECT_EQ(rowsOf(*gdbProject, "SELECT CallingNo, TVArea FROM TblLostCallers ORDER BY TVArea, CallingNo"),
              (Rows{"D|Granada", "C|London", "M2|MOBILE", "null|NO CLI", "V1|VOIP"}));
    EXPECT_EQ(
        rowsOf(*gdbProject, "SELECT CallingNo FROM TblAnsweredCallers WHERE TVArea = 'London' ORDER BY CallingNo"),
        (Rows{"A", "B"}));
}

TEST(SelectedTVArea, ALostCallerIsOneWhoWasNeverAnsweredAlsoOutsideTheSelection) {
    TVProject project;
    project.addAllCalls();
    SelectionSql = " CallDate >= #1/1/2025# AND CallDate <= #1/1/2025#";
    ModData_SelectedTVArea("TblSelectedDataForTV", 1);
    // On the first of January A and B were both unanswered; both got through on the second.
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT TotalCalls1 & '|' & Answered1 & '|' & LostCallers1 & '|' & AnsweredCallers1 "
                                  "FROM TblSelectedDataForTV WHERE TVRegion = 'London'"),
              "3|0|1|0");
}

TEST(SelectedTVArea, SidePanelsOfASelectionHoldWholeSumsAndOnlySomeCallers) {
    TVProject project;
    project.addAllCalls();
    project.addCalls({{"M3", "MOBILE", "8", 0.70}, {"I3", ".33", "8", 4.00}});
    SelectionSql = " CallDate >= #1/1/2025#";
    ModData_SelectedTVArea("TblSelectedDataForTV", 1);
    const Rows rows = figures("TblSelectedDataForTV");
    const auto has = [&](const char* row) { return std::count(rows.begin(), rows.end(), row) == 1; };
    // Cost is summed over every outcome here; an outcome of no known kind is Other; callers only of mobile and VOIP.
    EXPECT_TRUE(has("International|4|3|1|9|0|0|0|1|0|0"));
    EXPECT_TRUE(has("Mobile|3|2|1|1|0|0|0|1|1|2"));
    EXPECT_TRUE(has("Other|2|1|1|0.05|0|0|1|0|0|0"));
    EXPECT_TRUE(has("VOIP|1|0|1|0|0|1|0|0|1|0"));
    EXPECT_TRUE(has("London|5|2|3|1.5|0.4|1|1|1|1|2"));
    EXPECT_EQ(rows.size(), 8U);
}

TEST(SelectedTVArea, AnEmptyProjectStillHasItsSidePanels) {
    const TVProject project;
    gdbProject->execute("DELETE FROM TblMappingGIS");
    ModData_SelectedTVArea("TblTV", 1);
    EXPECT_EQ(figures("TblTV"), (Rows{"International|0|0|0|0|0|0|0|0|0|0", "MOBILE|0|0|0|0|0|0|0|0|0|0",
                                      "Other|0|0|0|0|0|0|0|0|0|0", "Republic Of Ireland|0|0|0|0|0|0|0|0|0|0"}));
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST(SelectedTVArea, KeptRowsAreZeroedAndFilledAnew) {
    TVProject project;
    project.addAllCalls();
    SelectionSql = " CallDate = #1/2/2025#";
    ModData_SelectedTVArea("TblSelectedDataForTV", 1);
    gdbSystem->execute("INSERT INTO TblSelectedDataForTV (TVRegion, TotalCalls1, AverageCalls1, TotalCalls2) "
                       "VALUES ('Closed Region', 5, 2.5, 6)");
    SelectionSql = " CallDate >= #1/1/2025#";
    ModData_SelectedTVArea("TblSelectedDataForTV", 1);
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT TotalCalls1 & '|' & AverageCalls1 & '|' & TotalCalls2 FROM "
                                  "TblSelectedDataForTV WHERE TVRegion = 'Closed Region'"),
              "0|0|6")
        << "the row stays, and so do other periods";
    EXPECT_EQ(figures("TblSelectedDataForTV")[3], "London|5|2|3|1.5|0.4|1|1|1|1|2")
        << "areas that are added at the end do not lead the forward searches astray";
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT Count(*) FROM TblSelectedDataForTV WHERE TVRegion LIKE '.*'"), "0");
}

TEST(SelectedTVArea, PeriodTwoRebuildsATableWithoutCallsAndKeepsAnother) {
    TVProject project;
    project.addAllCalls();
    gdbSystem->execute("INSERT INTO TblSelectedDataForTV (TVRegion, TotalCalls1, Answered1) VALUES ('Old', 0, 9)");
    SelectionSql = " CallDate = #1/2/2025#";
    ModData_SelectedTVArea("TblSelectedDataForTV", 2);
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT Count(*) FROM TblSelectedDataForTV WHERE TVRegion = 'Old'"), "0");
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT TotalCalls2 & '|' & Cost2 & '|' & TotalCalls1 FROM TblSelectedDataForTV "
                                  "WHERE TVRegion = 'London'"),
              "2|1.5|0");

    ModData_SelectedTVArea("TblSelectedDataForTV", 1);
    SelectionSql = " CallDate = #1/1/2025#";
    ModData_SelectedTVArea("TblSelectedDataForTV", 2);
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT TotalCalls1 & '|' & TotalCalls2 FROM TblSelectedDataForTV WHERE "
                                  "TVRegion = 'London'"),
              "2|3");
    // Later periods do not fold: areas abroad get rows of their own beside the side panel.
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT TVRegion, TotalCalls2 FROM TblSelectedDataForTV WHERE TVRegion LIKE '.*' OR "
                                 "TVRegion IN ('International', 'Republic Of Ireland') ORDER BY TVRegion"),
              (Rows{".France|2", ".Germany|1", "International|3", "Republic Of Ireland|0"}));
}

TEST(SelectedTVArea, ALaterPeriodWithoutSelectionLeavesOutCallersWithoutAPlace) {
    TVProject project;
    project.addAllCalls();
    ModData_SelectedTVArea("TblSelectedDataForTV", 1);
    ModData_SelectedTVArea("TblSelectedDataForTV", 3);
    EXPECT_EQ(rowsOf(*gdbProject, "SELECT DISTINCT TVArea FROM SelectedData WHERE TVArea IN "
                                  "('MOBILE', 'UNTRACEAB', 'OLO', 'NO CLI', 'VOIP')"),
              Rows{"VOIP"});
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT TotalCalls3 & '|' & TotalCalls1 FROM TblSelectedDataForTV WHERE TVRegion = "
                                  "'Mobile'"),
              "0|2");
}

TEST(SelectedTVArea, FramesOfAnAnimationStandBesideEachOther) {
    TVProject project;
    project.addAllCalls();
    SelectionSql = " CallDate = #1/1/2025#";
    ModData_SelectedTVArea("TblAnimatedTV1", 1);
    SelectionSql = " CallDate = #1/2/2025#";
    ModData_SelectedTVArea("TblAnimatedTV1", 2);
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT TVRegion, TotalCalls1, TotalCalls2, TotalCalls5 FROM TblAnimatedTV1 WHERE "
                                 "TVRegion IN ('London', 'Mobile', 'International') ORDER BY TVRegion"),
              (Rows{"International|3|0|0", "London|3|2|0", "Mobile|2|0|0"}));
    // The tables of frames have no average; that is no fault worth a line.
    EXPECT_EQ(project.logLinesWith("AverageCalls"), 0);
}

/// Closes the system map database under the run once, at the first sign of the given kind.
class ClosingProgress : public Progress {
public:
    explicit ClosingProgress(std::string task) : task_(std::move(task)) { setProgress(this); }
    ~ClosingProgress() override { setProgress(nullptr); }
    void setTask(const std::string& text) override {
        if (text == task_)
            gdbSystem->close();
        tasks.push_back(text);
    }
    void setHourglass(bool on) override { hourglass.push_back(on); }

    Rows tasks;
    std::vector<bool> hourglass;

private:
    std::string task_;
};

TEST(SelectedTVArea, ADeadSystemMapDatabaseIsOpenedAnewWhereverItDies) {
    for (const char* task : {"Updating TV Areas...", "Updating Total Cost By TV Area Statistics...",
                             "Updating Lost Callers By TV Area Statistics...",
                             "Updating 'Other', 'International', 'Mobile' Statistics..."}) {
        TVProject project;
        project.addAllCalls();
        gdbProject->execute("DELETE FROM TblTeleItem WHERE [1141] = '06'");
        ClosingProgress closing(task);
        ModData_SelectedTVArea("TblTV", 1);
        EXPECT_EQ(figures("TblTV"), wholeProject) << task;
        EXPECT_EQ(project.logLines(), Rows{}) << task;
    }
}

TEST(SelectedTVArea, TellsWhatItIsDoing) {
    const TVProject project;
    ClosingProgress watching("never");
    ModData_SelectedTVArea("TblTV", 1);
    EXPECT_EQ(watching.tasks, (Rows{"Updating TV Areas...", "Updating Total Cost By TV Area Statistics...",
                                    "Updating Total Revenue By TV Area Statistics...",
                                    "Updating Answered Callers By TV Area Statistics...",
                                    "Updating Lost Callers By TV Area Statistics...",
                                    "Updating 'Other', 'International', 'Mobile' Statistics..."}));
    EXPECT_EQ(watching.hourglass, (std::vector<bool>{true, false}));
    watching.tasks.clear();
    ModData_SelectedTVArea("TblSelectedDataForTV", 1);
    EXPECT_EQ(watching.tasks, Rows{}) << "only while a main table is filled";
}

TEST(SelectedTVArea, NamesThatDifferInCaseAndTrailingBlanksAreOneArea) {
    TVProject project;
    project.addPlaces({{"07", "LONDON "}, {"08", "mobile"}});
    project.addCalls({{"A", "01", "0", 1.0},
                      {"A", "07", "0", 2.0},
                      {"B", "07", "2", 0},
                      {"C", "08", "0", 4.0},
                      {"D", "MOBILE", "4", 0}});
    ModData_SelectedTVArea("TblTV", 1);
    const Rows rows = figures("TblTV");
    ASSERT_EQ(rows.size(), 8U);
    for (const std::size_t at : {2U, 4U}) {
        const std::string counted = rows[at].substr(rows[at].find('|'));
        EXPECT_EQ(counted, at == 2 ? "|3|2|1|3|0|1|0|0|1|1" : "|2|1|1|4|0|0|1|0|1|1") << rows[at];
    }
}

/// What the bar of a report was last told, and where it went.
class BarProgress : public Progress {
public:
    BarProgress() { setProgress(this); }
    ~BarProgress() override { setProgress(nullptr); }
    void setReportBar(bool visible, long maximum, long value) override {
        shown.push_back((visible ? "shown " : "hidden ") + std::to_string(value) + "/" + std::to_string(maximum));
    }
    Rows shown;
};

TEST(SelectedTVArea, TheReportsBarGoesOnByMajorStepsUpToItsEnd) {
    const TVProject project;
    BarProgress bar;
    StatsProgressMaximum = 3;
    StatsProgressStep = 2;
    ModData_SelectedTVArea("TblSelectedDataForTV", 1);
    EXPECT_EQ(bar.shown, (Rows{"shown 2/3", "shown 3/3", "hidden 3/3"})) << "the first period starts at step one";
    bar.shown.clear();
    StatsProgressMaximum = 20;
    ModData_SelectedTVArea("TblSelectedDataForTV", 4);
    EXPECT_EQ(bar.shown, (Rows{"shown 4/20", "shown 5/20", "shown 6/20", "shown 7/20", "hidden 7/20"}))
        << "later periods go on from where the bar stands";
    StatsProgressMaximum = 0;
    StatsProgressStep = 0;
}

TEST(SelectedTVArea, AFailingStatementIsLoggedAndTheRunEnds) {
    TVProject project;
    project.addAllCalls();
    SelectionSql = " CallDate >= ((";
    ModData_SelectedTVArea("TblSelectedDataForTV", 1);
    EXPECT_GE(project.logLinesWith("\"ModData_SelectedTVArea\""), 3) << "calls, answered callers, lost callers";
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT TotalCalls1 FROM TblSelectedDataForTV WHERE TVRegion = 'London'"), "0");
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT Count(*) FROM TblSelectedDataForTV WHERE TVRegion = 'Republic Of Ireland'"),
              "1");
}

TEST(SelectedTVArea, AMissingTableOrProjectEndsTheRunWithLinesInTheLog) {
    TVProject project;
    project.addAllCalls();
    gdbSystem->execute("DROP TABLE TblAnimatedTV1");
    ModData_SelectedTVArea("TblAnimatedTV1", 1);
    EXPECT_GT(project.logLinesWith("TblAnimatedTV1"), 0);

    gdbProject.reset();
    gsProjectPath = project.file("moved away.mdb");
    ModData_SelectedTVArea("TblTV", 1);
    EXPECT_GT(project.logLinesWith("moved away.mdb"), 0);
    EXPECT_EQ(figures("TblTV").size(), 4U) << "the rows that every table has";
}

} // namespace
