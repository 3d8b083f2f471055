#include "core/LogError.h"
#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TextFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

namespace {

class ErrorLog : public testing::Test {
protected:
    void SetUp() override {
        gPaths = std::make_shared<cPathControl>(folder_.makeFolder("program"), folder_.text());
        gPaths->ApplicationDataPath = folder_.makeFolder("data");
    }
    void TearDown() override { resetGlobals(); }

    std::string log() const { return folder_.file("data/CS Mapping Error.log"); }
    std::string older() const { return folder_.file("data/CS Mapping Error.bak"); }

    TemporaryFolder folder_;
};

TEST_F(ErrorLog, AppendsOneLineOfFourValues) {
    LogError("ModData_SelectedTVArea", 3420, R"(Object "x" invalid)");
    LogError("ModUtilities_Main", -1, "two\nlines");
    const std::regex lines(R"(#\d{4}-\d\d-\d\d \d\d:\d\d:\d\d#,"ModData_SelectedTVArea",3420,"Object "x" invalid")"
                           "\n"
                           R"(#\d{4}-\d\d-\d\d \d\d:\d\d:\d\d#,"ModUtilities_Main",-1,"two lines")"
                           "\n");
    EXPECT_TRUE(std::regex_match(readText(log()), lines)) << readText(log());
}

TEST_F(ErrorLog, RollsOverOnlyAboveOneMillionBytes) {
    writeText(log(), std::string(1000000, 'x'));
    LogError("p", 1, "d");
    EXPECT_FALSE(std::filesystem::exists(older()));
    EXPECT_GT(std::filesystem::file_size(log()), 1000000u);

    writeText(log(), std::string(1000001, 'x'));
    writeText(older(), "an older generation");
    LogError("p", 1, "d");
    EXPECT_EQ(std::filesystem::file_size(older()), 1000001u);
    const std::string text = readText(log());
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1);
}

TEST_F(ErrorLog, LosesNothingWhereTheOlderGenerationCannotBeReplaced) {
    std::filesystem::create_directories(older());
    writeText(log(), std::string(1000001, 'x'));
    LogError("p", 1, "d");
    EXPECT_GT(std::filesystem::file_size(log()), 1000001u);
}

TEST_F(ErrorLog, IsSilentWithoutAFolder) {
    gPaths->ApplicationDataPath = folder_.file("missing");
    LogError("p", 1, "d");
    EXPECT_FALSE(std::filesystem::exists(folder_.file("missing")));
    gPaths->ApplicationDataPath.clear();
    LogError("p", 1, "d");
    EXPECT_FALSE(std::filesystem::exists("/CS Mapping Error.log"));
    gPaths.reset();
    LogError("p", 1, "d");
}

} // namespace
