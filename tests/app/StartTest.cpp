#include "core/cPathControl.h"
#include "data/schema/Vocabulary.h"
#include "tests/app/ScriptedStart.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TextFile.h"

#include <gtest/gtest.h>

#include <functional>
#include <regex>

namespace {

using Texts = std::vector<std::string>;

/// A small installation: program, application data with ukmap.mdb, delivered files, and a project.
class Start : public testing::Test {
protected:
    void SetUp() override { makeInstallation(); }
    void TearDown() override { letGo(); }

    void makeInstallation() {
        for (const auto& entry : std::filesystem::directory_iterator(folder_.path()))
            std::filesystem::remove_all(entry);
        folder_.makeFolder("program");
        folder_.makeFolder("system");
        const std::string data = folder_.makeFolder("data");
        writeText(folder_.file("program/Paths.txt"),
                  "AppFolder=" + data + "\nSystemFolder=" + folder_.file("program") + "\n");
        makeDatabase(data + "/ukmap.mdb", SystemMapConnect);
        makeDatabase(project(), {});
    }
    static void letGo() {
        resetGlobals();
        resetDefaultWorkspace();
    }

    static void makeDatabase(const std::string& path, std::string_view connect) {
        Workspace::create()->createDatabase(path, connect)->close();
    }
    std::string project() const { return folder_.file("March.mdb"); }
    std::string history() const { return folder_.file("data/CallHistory.csv"); }
    std::string log() const { return readText(folder_.file("data/CS Mapping Error.log")); }

    StartResult run() {
        return ModUtilities_Main({folder_.file("program"), folder_.text(), folder_.file("system")}, actions_);
    }

    TemporaryFolder folder_;
    ScriptedStart actions_;
    ScriptedPrompts prompts_;
};

TEST_F(Start, ShowsTheMainWindowAndNothingElseInAFreshInstallation) {
    EXPECT_EQ(run(), StartResult::Running);
    EXPECT_EQ(actions_.calls, (Texts{"instance", "font", "map update", "command line", "main window"}));
    EXPECT_TRUE(actions_.systemWasClosed) << "the update must find the file free";
    EXPECT_EQ(prompts_.texts, Texts{});
    EXPECT_EQ(log(), "");
    EXPECT_EQ(gsSystemDBPath, folder_.file("data/ukmap.mdb"));
    ASSERT_TRUE(gdbSystem);
    EXPECT_TRUE(gdbSystem->isOpen());
    EXPECT_EQ(gsProjectPath, "");
    EXPECT_EQ(gsFontName, "Calibri");
    EXPECT_TRUE(gColours);
    EXPECT_FALSE(gbReportLogo);
    EXPECT_TRUE(std::regex_match(gsVersion, std::regex(R"(\d+\.\d\d\.\d{4})"))) << gsVersion;
}

TEST_F(Start, TakesFontAndLogoFromTheDeliveredFiles) {
    actions_.fontLoads = true;
    writeText(folder_.file("system/OSTELREPORTLOGO.JPG"), "a picture");
    gbTVPopulation = gbPostCodePopulation = true;
    gcCampaignSpend = 12.5;
    EXPECT_EQ(run(), StartResult::Running);
    EXPECT_EQ(actions_.fontPath, folder_.file("system/OstelCurve_Rg.ttf"));
    EXPECT_EQ(gsFontName, "Ostel Curve");
    EXPECT_TRUE(gbReportLogo);
    EXPECT_FALSE(gbTVPopulation || gbPostCodePopulation);
    EXPECT_EQ(gcCampaignSpend, 0.0);
}

TEST_F(Start, EndsWithAMessageWhereItCannotGoOn) {
    struct Case {
        const char* name;
        std::function<void()> arrange;
        const char* message;
        PromptStyle style;
        bool reachesCommandLine;
    };
    const std::string program = folder_.file("program");
    const std::string map = folder_.file("data/ukmap.mdb");
    const Case cases[] = {
        {"second instance", [&] { actions_.otherInstance = true; },
         "Another instance of this application is already running.", PromptStyle::Plain, false},
        {"map update fails", [&] { actions_.mapUpdateFails = -1; },
         "Could not update system with new UKMap.BAK.  Program must shut down", PromptStyle::Stop, false},
        {"dot in a folder name",
         [&] {
             writeText(program + "/Paths.txt", "AppFolder=" + folder_.file("data") + "\nSystemFolder=/opt/v1.2/bin\n");
         },
         "Program installed in invalid folder, folder names must not include dots", PromptStyle::Information, true},
        {"no map database", [&] { std::filesystem::remove(map); }, "Mapping database cannot be found",
         PromptStyle::Plain, true},
        {"wrong password",
         [&] {
             std::filesystem::remove(map);
             makeDatabase(map, "MS Access;PWD=other");
         },
         "Mapping database cannot be found", PromptStyle::Plain, true},
        {"no database at all", [&] { writeText(map, std::string(8192, 'x')); }, "Mapping database cannot be found",
         PromptStyle::Plain, true},
        {"window does not load", [&] { actions_.failsIn = "main window"; }, "Mapping database cannot be found",
         PromptStyle::Plain, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        letGo();
        makeInstallation();
        actions_ = ScriptedStart();
        prompts_.texts.clear();
        prompts_.styles.clear();
        c.arrange();
        EXPECT_EQ(run(), StartResult::Ended);
        EXPECT_EQ(prompts_.texts, Texts{c.message});
        EXPECT_EQ(prompts_.styles, std::vector{c.style});
        EXPECT_EQ(actions_.called("command line"), c.reachesCommandLine);
        EXPECT_FALSE(actions_.called("open project"));
    }
}

TEST_F(Start, LogsPathAndReasonOfABadMapDatabase) {
    std::filesystem::remove(folder_.file("data/ukmap.mdb"));
    run();
    EXPECT_TRUE(std::regex_search(log(), std::regex(R"(,"ModUtilities_Main",3024,".*data/ukmap\.mdb)"))) << log();
    EXPECT_FALSE(std::filesystem::exists(folder_.file("data/ukmap.mdb"))) << "nothing is made in its place";
}

TEST_F(Start, DecidesWhatOpensByTheHistory) {
    struct Case {
        const char* name;
        const char* history; ///< null: no file; %P stands for the project's path
        std::string projectPath;
        Texts callsAfterWindow;
    };
    const std::string fromLine = "/from/command/line.mdb";
    const Case cases[] = {
        {"no history: the path of the command line stays and nothing opens", nullptr, fromLine, {}},
        {"the first project wins over the command line",
         "\"More files ..\"\r\n\"%P\"\r\n\"/x.mdb\"\r\n",
         project(),
         {"open project", "mapping table", "open map"}},
        {"an empty second line", "\"More files ..\"\n\"\"\n", "", {}},
        {"a single line stays as it was read", "\"More files ..\"\n", "\"More files ..\"", {}},
        {"an empty file", "", fromLine, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::filesystem::remove(history());
        std::filesystem::remove(folder_.file("data/CS Mapping Error.log"));
        if (c.history)
            writeText(history(), std::regex_replace(c.history, std::regex("%P"), project()));
        actions_ = ScriptedStart();
        actions_.line = "\"\",\"\",\"" + fromLine + "\"";
        EXPECT_EQ(run(), StartResult::Running);
        EXPECT_EQ(gsProjectPath, c.projectPath);
        const auto window = std::find(actions_.calls.begin(), actions_.calls.end(), "main window");
        EXPECT_EQ(Texts(window + 1, actions_.calls.end()), c.callsAfterWindow);
        EXPECT_EQ(prompts_.texts, Texts{});
        letGo();
    }
    EXPECT_NE(log().find(",62,"), std::string::npos) << "reading past the end is logged";
}

TEST_F(Start, KeepsTheWindowWhereTheLatestProjectFails) {
    writeText(history(), "\"More files ..\"\n\"" + project() + "\"\n");
    actions_.projectOpens = false;
    EXPECT_EQ(run(), StartResult::Running);
    EXPECT_EQ(prompts_.texts, Texts{"Unable to open Project Database"});
    EXPECT_EQ(prompts_.styles, std::vector{PromptStyle::Information});
    EXPECT_EQ(actions_.calls.back(), "open project");
    EXPECT_FALSE(gdbProject);
}

TEST_F(Start, OpensTheProjectEvenWhereItsGeographyStaysOld) {
    writeText(history(), "\"More files ..\"\n\"" + project() + "\"\n");
    actions_.gisUpdateFails = -1;
    EXPECT_EQ(run(), StartResult::Running);
    EXPECT_EQ(prompts_.texts, Texts{"An error occurred updating the Exchange GIS data"});
    EXPECT_EQ(actions_.calls.back(), "open map");
}

TEST_F(Start, LogsOtherErrorsAndGoesOn) {
    writeText(history(), "\"More files ..\"\n\"" + project() + "\"\n");
    for (const char* step : {"instance", "font", "map update", "command line", "open project", "open map"}) {
        SCOPED_TRACE(step);
        actions_ = ScriptedStart();
        actions_.failsIn = step;
        EXPECT_EQ(run(), StartResult::Running);
        EXPECT_TRUE(actions_.called("main window"));
        EXPECT_TRUE(actions_.called("open project"));
        EXPECT_EQ(prompts_.texts, Texts{});
        const bool logIsThere = std::string(step) != "instance"; // before that its folder is not known
        EXPECT_EQ(log().find("\"no " + std::string(step) + "\"") != std::string::npos, logIsThere);
        letGo();
    }
}

TEST_F(Start, NeedsTheFoldersOfTheInstallation) {
    std::filesystem::remove(folder_.file("program/Paths.txt"));
    folder_.makeFolder("program/Paths.txt");
    EXPECT_EQ(run(), StartResult::Ended);
    EXPECT_EQ(prompts_.texts, Texts{"Mapping database cannot be found"});
}

} // namespace
