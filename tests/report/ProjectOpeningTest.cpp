#include "report/FrmMain_lsthistory_click.h"
#include "report/ModUtilities_OpenMap.h"

#include "core/CallHistory.h"
#include "core/ModDeclarations.h"
#include "core/RuntimeError.h"
#include "core/cPathControl.h"
#include "data/project/Databases.h"
#include "report/OpenInstallation.h"
#include "report/ProjectWindow.h"
#include "report/ReportRun.h"
#include "report/SelectedData.h"
#include "sample/installation/SampleInstallation.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/SmallInstallation.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

/// A window that writes down what it is asked for, in words.
class ScriptedWindow : public ProjectWindow {
public:
    void showProjectName(const std::string& text) override { name = text; }
    void readHistory() override { history = ModUtilities_ReadHistory(); }
    void EnableForm() override { enabled = true; }
    void DisableForm() override { enabled = false; }
    void Setup_Dates() override { steps += "dates "; }
    void Setup_Location_List() override { steps += "locations "; }
    void Setup_Inbound_List() override { steps += "inbound "; }
    void resetChoices() override { steps += "choices "; }
    void restoreMultiMaps(const MultiMapSettings& settings) override {
        steps += "maps:" + std::to_string(mapCount(settings.ranges)) + " ";
    }
    std::optional<std::string> chooseProject(const std::string& suggested) override {
        offered = suggested;
        return chosen;
    }
    void showCapture(const std::function<void()>& work) override {
        steps += "capture ";
        work();
    }
    void CmdReport_Click() override { steps += "report "; }
    bool DrawPieChart() override {
        steps += "pie ";
        return true;
    }
    void CreateMap() override { steps += "map "; }
    void removeCustomerGroups() override { steps += "nogroups "; }

    std::string takeSteps() { return std::exchange(steps, std::string()); }

    std::string name, steps, offered;
    std::vector<std::string> history;
    std::optional<std::string> chosen;
    bool enabled = false;
};

/// A copy of a sample installation that is made once, its system map database open, no project open.
class ProjectOpening : public testing::Test {
protected:
    static void SetUpTestSuite() {
        original_ = new TemporaryFolder;
        sample::makeSampleInstallation({.folder = original_->text(), .calls = 2'000, .seed = 3});
    }
    static void TearDownTestSuite() { delete original_; }

    ProjectOpening() {
        std::filesystem::copy(original_->path(), folder_.path(), std::filesystem::copy_options::recursive);
        resetGlobals();
        resetDefaultWorkspace();
        gPaths = std::make_shared<cPathControl>(folder_.text(), folder_.text());
        gPaths->ApplicationDataPath = folder_.file("app");
        gPaths->SystemDataPath = folder_.file("system");
        gsSystemDBPath = folder_.file("app/ukmap.mdb");
        reopenSystemDatabase();
        RecomputeSelection = false;
    }
    ~ProjectOpening() override {
        resetGlobals();
        resetDefaultWorkspace();
    }

    std::string project(const std::string& name = "Sample") const { return folder_.file("projects/" + name + ".mdb"); }
    void copyProject(const std::string& name) const { std::filesystem::copy_file(project(), project(name)); }

    /// Changes a project that is not open.
    void change(const std::string& name, const std::string& statement) const {
        const auto database =
            defaultWorkspace()->openDatabase(project(name), Workspace::Access::Exclusive, ProjectConnect);
        database->execute(statement);
        database->close();
    }

    /// Opens by the dialogue.
    void choose(const std::string& path) {
        window_.chosen = path;
        FrmMain_lsthistory_click(window_, 1);
    }

    /// As the program starts: the project is open already.
    void start() {
        gsProjectPath = project();
        reopenProject();
        ModUtilities_OpenMap(window_);
    }

    std::string lastMessage() const { return prompts_.texts.empty() ? "" : prompts_.texts.back(); }

    inline static TemporaryFolder* original_ = nullptr;
    TemporaryFolder folder_;
    ScriptedWindow window_;
    ScriptedPrompts prompts_;
};

TEST_F(ProjectOpening, AChosenProjectIsCountedOnceAndThenFoundCounted) {
    choose(project());
    EXPECT_EQ(lastMessage(), "");
    EXPECT_EQ(window_.takeSteps(), "dates locations inbound choices dates capture ");
    EXPECT_EQ(window_.name, "Sample");
    EXPECT_TRUE(window_.enabled);
    EXPECT_EQ(window_.history, (std::vector<std::string>{"More files ..", project()}));
    EXPECT_TRUE(isCaptured());
    const std::string counted = valueOf(*gdbSystem, "SELECT Sum(TotalCalls1) FROM TblTV");
    EXPECT_EQ(counted, valueOf(*gdbProject, "SELECT Count(*) FROM TblTeleItem INNER JOIN TblMappingGIS ON "
                                            "TblTeleItem.[1141] = TblMappingGIS.[1141]"));

    FrmMain_lsthistory_click(window_, 2);
    EXPECT_EQ(window_.takeSteps(), "dates locations inbound choices dates ") << "from the list, and not counted anew";
}

TEST_F(ProjectOpening, OfTwoProjectsTheLatestHasTheFigures) {
    copyProject("Second");
    choose(project());
    choose(project("Second"));
    window_.takeSteps();
    EXPECT_EQ(window_.offered, project()) << "the dialogue begins at the open project";
    EXPECT_EQ(window_.history, (std::vector<std::string>{"More files ..", project("Second"), project()}));
    FrmMain_lsthistory_click(window_, 3);
    EXPECT_EQ(window_.takeSteps(), "dates locations inbound choices dates capture ");
    std::filesystem::rename(project("Second"), project("Moved"));
    FrmMain_lsthistory_click(window_, 3);
    EXPECT_EQ(lastMessage(), "Project not found");
    EXPECT_EQ(gsProjectPath, "");
    EXPECT_FALSE(window_.enabled);
    EXPECT_EQ(window_.name, "Please select a file");
}

TEST_F(ProjectOpening, StartsWithTheMapOfTheProject) {
    start();
    EXPECT_EQ(window_.takeSteps(), "dates locations inbound choices dates capture pie report map ");
    EXPECT_EQ(lastMessage(), "");
    start();
    EXPECT_EQ(window_.takeSteps(), "dates locations inbound choices dates report ");
    gsBoundaryType = "PostcodeDistrict";
    MultiMapParameters four;
    four.OptPeriods = 1;
    SaveMultiData({}, four);
    gsBoundaryType.clear();
    start();
    EXPECT_EQ(window_.takeSteps(), "dates locations inbound choices dates maps:4 report ");
    EXPECT_EQ(gsBoundaryType, "PostcodeDistrict");
}

TEST_F(ProjectOpening, TheSameReportAgainTouchesNeitherItsTableNorTheRow) {
    choose(project());
    ReportParameters filter = wholeProject();
    filter.DTStart.days += 5;
    const auto row = [] { return rowsOf(*gdbSystem, "SELECT * FROM TblDataCapture"); };
    EXPECT_TRUE(runReport(2, filter).filtered);
    const auto remembered = row();
    gdbSystem->execute("UPDATE TblSelectedDataForTV SET TotalCalls1 = 777 WHERE TVRegion = 'London'");
    const auto mark = [] {
        return valueOf(*gdbSystem, "SELECT TotalCalls1 FROM TblSelectedDataForTV WHERE TVRegion = 'London'");
    };
    runReport(2, filter);
    EXPECT_EQ(mark(), "777");
    EXPECT_EQ(row(), remembered);
    EXPECT_FALSE(runReport(2, wholeProject()).filtered);
    EXPECT_EQ(row(), remembered) << "the whole project is not compared";
    filter.DTStart.days += 1;
    runReport(2, filter);
    EXPECT_NE(mark(), "777");

    MultiMapParameters ranges;
    for (std::size_t map = 0; map < 6; ++map) {
        ranges.DTPicker1[map * 4] = filter.DTStart;
        ranges.DTPicker1[map * 4 + 2] = filter.DTEnd;
        ranges.DTPicker1[map * 4 + 3] = Date{86399.0 / 86400};
    }
    runMultiMapReport(2, filter, ranges);
    gdbSystem->execute("UPDATE TblSelectedDataForTV SET TotalCalls2 = 777 WHERE TVRegion = 'London'");
    runMultiMapReport(2, filter, ranges);
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT TotalCalls2 FROM TblSelectedDataForTV WHERE TVRegion = 'London'"), "777");
    EXPECT_THROW(runMultiMapReport(1, filter, ranges), RuntimeError);
}

TEST_F(ProjectOpening, AProjectWithoutCallsIsLeft) {
    change("Sample", "DELETE FROM TblTeleItem");
    start();
    EXPECT_EQ(lastMessage(), "This is an invalid project file. Only files containing ERD data can be used.");
    EXPECT_EQ(gdbProject, nullptr);
    choose(project());
    EXPECT_EQ(lastMessage(), "No records found in this project");
    EXPECT_EQ(gsProjectPath, "");
    EXPECT_FALSE(window_.enabled);
    EXPECT_EQ(window_.takeSteps(), "");
}

TEST_F(ProjectOpening, FilesThatAreNoProjectsAreRefusedAndStayAsTheyAre) {
    std::filesystem::copy_file(folder_.file("app/ukmap.mdb"), project("OtherPassword"));
    std::ofstream(project("Text")) << "no database at all";
    for (const char* name : {"OtherPassword", "Text"}) {
        const auto size = std::filesystem::file_size(project(name));
        choose(project(name));
        EXPECT_EQ(lastMessage(), "Invalid project file selected") << name;
        EXPECT_EQ(gsProjectPath, "");
        EXPECT_EQ(std::filesystem::file_size(project(name)), size);
    }
    const std::string old =
        "SELECT CallDate AS A, CallTime AS B, CalledNo AS C, CallingNo AS D, [1141] AS E, AnswerInd "
        "AS F, Discounted AS G, AnswerLoc AS H, NetAddress AS I, Legs AS J, AnswerTime AS K, Legs "
        "AS Predisc INTO Old FROM TblTeleItem";
    change("Sample", old);
    change("Sample", "DROP TABLE TblTeleItem");
    change("Sample", "SELECT * INTO TblTeleItem FROM Old");
    choose(project());
    EXPECT_EQ(lastMessage(),
              "This is an older version project file and is no longer valid.  Please select a valid project file.");
}

TEST_F(ProjectOpening, IncompleteCallsAreWarnedOfAndACancelledChoiceSaysNothing) {
    change("Sample", "UPDATE Tbl50 SET Flags = 1");
    choose(project());
    EXPECT_EQ(lastMessage(), "WARNING - The call records for this project are incomplete.\r\nCall reports may be "
                             "inaccurate or incomplete.\r\n");
    gcCampaignSpend = 5;
    choose(project());
    EXPECT_EQ(gcCampaignSpend, 5) << "the dialogue keeps the spend";
    const std::size_t messages = prompts_.texts.size();
    window_.chosen.reset();
    FrmMain_lsthistory_click(window_, 1);
    EXPECT_EQ(prompts_.texts.size(), messages);
    EXPECT_FALSE(window_.enabled);
    FrmMain_lsthistory_click(window_, 2);
    EXPECT_EQ(gcCampaignSpend, 0);
}

} // namespace
