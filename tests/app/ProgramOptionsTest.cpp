#include "app/ProgramOptions.h"

#include <gtest/gtest.h>

namespace {

using Arguments = std::vector<std::string>;

TEST(ProgramOptions, CutOptionsFromTheProject) {
    struct Case {
        const char* name;
        Arguments given;
        std::string pathsFolder;
        Arguments rest;
    };
    const Case cases[] = {
        {"nothing", {}, "", {}},
        {"a project alone", {"/data/March.mdb"}, "", {"/data/March.mdb"}},
        {"a folder and a project", {"--paths-folder", "/inst", "/data/March.mdb"}, "/inst", {"/data/March.mdb"}},
        {"the folder behind an equals sign", {"--paths-folder=/in=st"}, "/in=st", {}},
        {"options end at the project", {"March.mdb", "--help"}, "", {"March.mdb", "--help"}},
        {"a project that begins like an option", {"--", "-odd.mdb"}, "", {"-odd.mdb"}},
    };
    for (const Case& c : cases) {
        const ProgramOptions options = parseOptions(c.given);
        EXPECT_EQ(options.fault, "") << c.name;
        EXPECT_EQ(options.pathsFolder, c.pathsFolder) << c.name;
        EXPECT_EQ(options.arguments, c.rest) << c.name;
        EXPECT_FALSE(options.help || options.version) << c.name;
    }
    EXPECT_TRUE(parseOptions({"--help"}).help);
    EXPECT_TRUE(parseOptions({"-h"}).help);
    EXPECT_TRUE(parseOptions({"--version"}).version);
}

TEST(ProgramOptions, NameWhatIsWrong) {
    EXPECT_EQ(parseOptions({"--paths-folder"}).fault, "--paths-folder needs a folder behind it");
    EXPECT_EQ(parseOptions({"--paths", "/inst"}).fault, "unknown option --paths");
    EXPECT_EQ(parseOptions({"--paths-folder="}).fault, "--paths-folder needs a folder behind it");
}

} // namespace
