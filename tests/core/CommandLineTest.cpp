#include "core/CommandLine.h"
#include "core/Version.h"

#include <gtest/gtest.h>

namespace {

TEST(CommandLine, CutsIntoThreeFields) {
    struct Case {
        const char* name;
        const char* line;
        CommandLineFields fields;
    };
    const Case cases[] = {
        {"nothing", "", {"", "", ""}},
        {"three quoted fields", R"("a","b","C:\My Data\March.mdb")", {"a", "b", R"(C:\My Data\March.mdb)"}},
        {"the first alone keeps its closing quote", R"("a")", {R"(a")", "", ""}},
        {"two: the second keeps its closing quote", R"("a","b")", {"a", R"(b")", ""}},
        {"a fourth is dropped, so the third has no quote left to lose", R"("a","b","c","d")", {"a", "b", "c"}},
        {"empty fields", R"("","","")", {"", "", ""}},
        {"no quotes at all", "a,b,c", {"a,b,c", "", ""}},
        {"only one quote goes at each end", R"(""a","b","c"")", {R"("a)", "b", R"(c")"}},
        {"a blank behind a comma is no separator", R"("a", "b","c")", {R"(a", "b)", R"(c")", ""}},
        {"a lone quote in the last field", R"(a","b",")", {"a", "b", ""}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(splitCommandLine(c.line), c.fields) << c.name;
}

TEST(CommandLine, FindsTheProjectInWhatTheSystemHandsOver) {
    struct Case {
        const char* name;
        std::vector<std::string> arguments;
        const char* project;
    };
    const Case cases[] = {
        {"no argument", {}, ""},
        {"a ready line", {R"("x","y","/data/March.mdb")"}, "/data/March.mdb"},
        {"a plain path", {"/data/March.mdb"}, "/data/March.mdb"},
        {"a path with a comma and blanks", {"/data/Smith, Sons/March 1.mdb"}, "/data/Smith, Sons/March 1.mdb"},
        {"a path whose blank was not quoted", {"/data/March", "1.mdb"}, "/data/March 1.mdb"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(splitCommandLine(rebuildCommandLine(c.arguments))[2], c.project) << c.name;
}

TEST(Version, PadsMinorAndRevision) {
    EXPECT_EQ(versionText(1, 0, 1), "1.00.0001");
    EXPECT_EQ(versionText(12, 34, 5678), "12.34.5678");
    EXPECT_EQ(versionText(2, 100, 12345), "2.100.12345");
}

} // namespace
