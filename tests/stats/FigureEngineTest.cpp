#include "stats/FigureEngine.h"

#include "data/project/Databases.h"
#include "data/types/DatabaseError.h"
#include "stats/FigureSource.h"
#include "stats/ModData_SelectedCustomerGroups.h"
#include "stats/ModUtilities_CreateAverageCallsTables.h"
#include "stats/ModUtilities_GetPayphoneStatistics.h"
#include "tests/stats/BoundaryProject.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

class FigureEngines : public testing::Test {
protected:
    void SetUp() override { project.addAllCalls(); }
    void TearDown() override {
        setFigureEngine(FigureEngine::Automatic);
        SelectionSql.clear();
    }

    /// The rows of a working table in no order.
    static Rows working(const std::string& table) {
        Rows rows = rowsOf(*gdbProject, "SELECT * FROM " + table);
        std::sort(rows.begin(), rows.end());
        return rows;
    }
    static bool isView(const std::string& table) {
        try {
            gdbProject->execute("DELETE FROM " + table);
            return false;
        } catch (const DatabaseError& error) {
            return error.number() == 3073;
        }
    }

    const std::string workingTables[3] = {"SelectedData", "TblAnsweredCallers", "TblLostCallers"};
    BoundaryProject project;
};

const char* const selections[] = {
    "",
    " CallDate >= #1/1/2025# AND CallDate <= #1/1/2025#",
    " CallDate >= #1/2/2025# AND CallDate <= #1/2/2025# AND CalledNo Like '08*'",
    " AnswerLoc In ('Leeds', 'O''Hare') AND CDate(Left(CallTime,2) & ':' & Mid(CallTime, 4,2)) >= #08:00:00#",
    " CallingNo = 'A'", // of statements only
};

TEST_F(FigureEngines, LeaveTheSameWorkingTables) {
    // A caller without a number, answered and not; one who was answered on another day only.
    project.addCalls({{"", "0114", "0", 1, 2}, {"B", "0113", "0", 1, 3}, {"M1", "MOBILE", "4"}, {"a", "0113", "4"}});
    for (const char* selection : selections) {
        SelectionSql = selection;
        setFigureEngine(FigureEngine::Statements);
        ModData_SelectedTVArea("TblSelectedDataForTV", 1);
        EXPECT_EQ(usedFigureEngine(), FigureEngine::Statements);
        std::vector<Rows> expected;
        for (const std::string& table : workingTables)
            expected.push_back(working(table));
        setFigureEngine(FigureEngine::Automatic);
        ModData_SelectedTVArea("TblSelectedDataForTV", 1);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(working(workingTables[i]), expected[i]) << workingTables[i] << selection;
        const bool scanned = SelectionSql.find("CallingNo") == std::string::npos;
        EXPECT_EQ(usedFigureEngine(), scanned ? FigureEngine::Scan : FigureEngine::Statements) << selection;
        for (const std::string& table : workingTables)
            EXPECT_EQ(isView(table), scanned) << table << selection;
    }
    EXPECT_TRUE(project.logLines().empty()) << project.logLines().front();
}

/// Of groups the selected calls stand in a table of the name of the statistics table.
TEST_F(FigureEngines, LeaveTheSameWorkingTablesOfGroups) {
    gdbSystem->execute("INSERT INTO tblMappingGroupSetup_Link (TALLYACCOUNT, DataType) VALUES ('ACC', '3')");
    gdbSystem->execute(
        "INSERT INTO tblTempGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', 'Mobile', 'Phones')");
    project.addArea("0115", "X", "115", "LS9", "Yorkshire"); // without calls
    for (const auto& [reference, group] : {std::pair{"LS1", "North"},
                                           {"S1", ""},
                                           {"Mobile", "Phones"},
                                           {"S1", "north "},
                                           {"VOIP", "S1"},
                                           {"LS9", "Quiet"},
                                           {"Other", "LS9"}})
        gdbProject->execute(std::string("INSERT INTO TblGroups (TallyAccount, Reference, GroupName) VALUES ('ACC', '") +
                            reference + "', '" + group + "')");
    const std::string target = "TblSelectedDataForCustomerGroups";
    for (const char* selection : selections) {
        SelectionSql = selection;
        std::vector<Rows> left[2];
        for (const FigureEngine engine : {FigureEngine::Statements, FigureEngine::Automatic}) {
            setFigureEngine(engine);
            gdbSystem->execute("DELETE FROM " + target);
            ModData_SelectedCustomerGroups(target, 1);
            std::vector<Rows>& rows = left[engine == FigureEngine::Automatic];
            rows = {figuresOf(target, "GroupName"), working(target), working("TblAnsweredCallers"),
                    working("TblLostCallers")};
        }
        EXPECT_EQ(left[1], left[0]) << selection;
        const bool scanned = SelectionSql.find("CallingNo") == std::string::npos;
        EXPECT_EQ(isView(target), scanned) << selection;
    }
    EXPECT_TRUE(project.logLines().empty()) << project.logLines().front();
}

/// Later ranges of districts read the callers that an earlier one has left behind.
TEST_F(FigureEngines, AgreeOnEveryPeriodOfDistricts) {
    const auto fill = [](FigureEngine engine) {
        setFigureEngine(engine);
        std::vector<Rows> figures;
        gdbSystem->execute("DELETE FROM TblSelectedDataForPostCodeDistrict");
        for (int period = 2; period <= 7; ++period) {
            SelectionSql = period == 2 ? "" : selections[period % 3];
            ModData_SelectedPostCodeData("TblSelectedDataForPostCodeDistrict", period);
        }
        for (int period = 1; period <= 7; ++period)
            figures.push_back(figuresOf("TblSelectedDataForPostCodeDistrict", "PostCodeDistrict", period));
        // The run of another boundary in between leaves callers of other areas.
        ModData_SelectedTVArea("TblSelectedDataForTV", 1);
        ModData_SelectedPostCodeData("TblSelectedDataForPostCodeDistrict", 3);
        figures.push_back(figuresOf("TblSelectedDataForPostCodeDistrict", "PostCodeDistrict", 3));
        return figures;
    };
    const auto expected = fill(FigureEngine::Statements);
    const long logged = project.logLinesWith("");
    EXPECT_EQ(fill(FigureEngine::Scan), expected);
    EXPECT_EQ(project.logLinesWith(""), 2 * logged);
    const auto mobile = std::find_if(expected[2].begin(), expected[2].end(),
                                     [](const std::string& row) { return row.starts_with("Mobile|"); });
    ASSERT_NE(mobile, expected[2].end());
    EXPECT_TRUE(mobile->ends_with("|1")) << *mobile;
}

TEST_F(FigureEngines, AScanThatIsWantedFailsAloudWhereItCannotBeDone) {
    setFigureEngine(FigureEngine::Scan);
    SelectionSql = " CallingNo = 'A'";
    ModData_SelectedTVArea("TblSelectedDataForTV", 1);
    EXPECT_EQ(usedFigureEngine(), FigureEngine::Automatic);
    EXPECT_GT(project.logLinesWith("cannot be had by a scan"), 0);
    EXPECT_GT(project.logLinesWith("CallingNo = 'A'"), 0);
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT Sum(TotalCalls1) FROM TblSelectedDataForTV"), "0");

    SelectionSql.clear();
    gdbProject->execute("UPDATE TblTeleItem SET Discounted = 300000 WHERE CallingNo = 'A'");
    ModData_SelectedTVArea("TblSelectedDataForTV", 1);
    EXPECT_EQ(usedFigureEngine(), FigureEngine::Automatic);
    EXPECT_GT(project.logLinesWith("no money of four decimals and this size"), 1);
}

/// Averages and payphones, with what counting can stumble over: calls without a date, callers without a number, codes
/// that lie in two places.
TEST_F(FigureEngines, AgreeOnDerivedMeasures) {
    project.addCalls({{"", "0114", "0", 1, 2}, {"", "0113", "x", 1, 3}, {"a ", "0113", "4", -2}, {"", "VOIP", "4"}});
    project.addArea("0113", "LEEDS", "113", "ls1", "Granada");
    gdbProject->execute("UPDATE TblTeleItem SET CallDate = Null WHERE CallingNo = 'C'");
    gdbProject->execute("UPDATE TblTeleItem SET PayPhone = 'p' WHERE CallingNo In ('A', 'C') Or CallingNo Is Null");
    gdbProject->execute("UPDATE TblTeleItem SET AnswerInd = Null WHERE AnswerInd = 'x'");
    const auto derived = [](FigureEngine engine) {
        setFigureEngine(engine);
        Rows rows;
        for (const char* table : {"TblTV", "TblPostCodeDistrict"})
            gdbSystem->execute(std::string("DELETE FROM ") + table);
        SelectionSql.clear();
        ModData_SelectedTVArea("TblTV", 1);
        ModData_SelectedPostCodeData("TblPostCodeDistrict", 1);
        for (const char* selection : selections) {
            SelectionSql = selection;
            ModUtilities_CreateAverageCallsTables();
            for (const char* query : {"SELECT TVRegion, AverageCalls1 FROM TblTV ORDER BY TVRegion",
                                      "SELECT PostCodeDistrict, AverageCalls1 FROM TblPostCodeDistrict ORDER BY 1"}) {
                for (const std::string& row : rowsOf(*gdbSystem, query))
                    rows.push_back(selection + row);
            }
            for (const char* name : {"TotalCalls", "Answered", "Ineffective", "Cost", "Revenue", "Engaged", "RTNR",
                                     "Other", "LostCallers", "AnsweredCallers", "Unknown"}) {
                double value = 0;
                ModUtilities_GetPayphoneStatistics(name, value);
                rows.push_back(std::string(selection) + name + Value(value).asText());
            }
        }
        return rows;
    };
    const Rows expected = derived(FigureEngine::Statements);
    EXPECT_EQ(derived(FigureEngine::Automatic), expected);
    EXPECT_NE(std::find(expected.begin(), expected.end(), "Yorkshire|2"), expected.end());
    EXPECT_NE(std::find(expected.begin(), expected.end(), "TotalCalls8"), expected.end());
}

/// A project on a medium that cannot be written: the figures are had, the working tables are not.
TEST_F(FigureEngines, AScanCountsAProjectThatCannotBeWritten) {
    gdbProject = defaultWorkspace()->openDatabase(gsProjectPath, Workspace::Access::ReadOnly, ProjectConnect);
    const auto figures = newFigureSource(tvRegions);
    figures->makeSelectedData({});
    figures->makeCallers(CallerKind::Answered, {});
    EXPECT_EQ(figures->callersByArea(CallerKind::Answered).size(), 4u);
    EXPECT_EQ(figures->specialRow(" = 'MOBILE'").totalCalls, 1);
    EXPECT_EQ(project.logLinesWith("open for reading only"), 2);
}

/// Long work must let the windows repaint.
TEST_F(FigureEngines, ARunYieldsWhileItBuildsColumns) {
    struct Yields : Progress {
        Yields() { setProgress(this); }
        ~Yields() override { setProgress(nullptr); }
        void yield() override { ++count; }
        int count = 0;
    } yields;
    newFigureSource(tvRegions)->makeSelectedData({});
    EXPECT_GT(yields.count, 2);
}

} // namespace
