#include "core/CallHistory.h"
#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TextFile.h"

#include <gtest/gtest.h>

namespace {

using Rows = std::vector<std::string>;

TEST(CallHistory, ReadsAtMostTenRows) {
    const TemporaryFolder folder;
    const std::string file = folder.file("CallHistory.csv");
    EXPECT_EQ(CallHistory::readRows(file), Rows{"More files .."}) << "no file";

    writeText(file, "\"More files ..\"\r\n\"/data/March.mdb\"\r\n");
    EXPECT_EQ(CallHistory::readRows(file), (Rows{"More files ..", "/data/March.mdb"}));

    std::string twelve = "\"More files ..\"\n";
    for (int i = 1; i <= 11; ++i)
        twelve += "\"/data/" + std::to_string(i) + ".mdb\"\n";
    writeText(file, twelve);
    const Rows rows = CallHistory::readRows(file);
    ASSERT_EQ(rows.size(), 10u);
    EXPECT_EQ(rows.back(), "/data/9.mdb");

    writeText(file, "");
    EXPECT_EQ(CallHistory::readRows(file), Rows{"More files .."}) << "empty file";
}

TEST(CallHistory, ShortensLongPaths) {
    struct Case {
        const char* name;
        const char* path;
        const char* shown;
    };
    const Case cases[] = {
        {"longer than 30 characters", R"(C:\Data\Projects\Customer\March.mdb)", R"(C:\..Customer\March.mdb)"},
        {"exactly 30", R"(C:\Data\Projects\Cust\Marc.mdb)", R"(C:\Data\Projects\Cust\Marc.mdb)"},
        {"31", R"(C:\Data\Projects\Cust\March.mdb)", R"(C:\..Cust\March.mdb)"},
        {"separators of the other kind", "/home/user/projects/Customer/March.mdb", "/ho..Customer/March.mdb"},
        {"one separator only", R"(C:\AVeryLongFileNameInTheRootFolder.mdb)",
         R"(C:\AVeryLongFileNameInTheRootFolder.mdb)"},
        {"a separator at the very head does not count", "/AFolder/AVeryLongFileNameInIt.mdb",
         "/AFolder/AVeryLongFileNameInIt.mdb"},
        {"a separator at the very end does not count", R"(C:\Data\Projects\Customer\March\)",
         R"(C:\..Customer\March\)"},
        {"30 characters of more bytes", "/d\xC3\xA9p\xC3\xB4t/projects/Custo/Marc.mdb",
         "/d\xC3\xA9p\xC3\xB4t/projects/Custo/Marc.mdb"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(CallHistory::shortened(c.path), c.shown) << c.name;
}

TEST(CallHistory, NamesProjectsShort) {
    EXPECT_EQ(CallHistory::shortName(R"(C:\Data\March.mdb)"), "March");
    EXPECT_EQ(CallHistory::shortName("/data/March.final.mdb"), "March");
    EXPECT_EQ(CallHistory::shortName("/data.old/projects/March.mdb"), "data") << "the first point counts";
    EXPECT_EQ(CallHistory::shortName("March"), "March");
    EXPECT_EQ(CallHistory::shortName(""), "");
}

/// The history file of an installation, and the project that is open.
class HistoryFile : public testing::Test {
protected:
    void SetUp() override {
        gPaths = std::make_shared<cPathControl>(folder_.makeFolder("program"), folder_.text());
        gPaths->ApplicationDataPath = folder_.text();
    }
    void TearDown() override { resetGlobals(); }

    std::string open(const std::string& project) const {
        gsProjectPath = project;
        ModUtilities_SaveHistory();
        return readText(file_);
    }
    static std::string lines(const Rows& rows) {
        std::string text;
        for (const std::string& row : rows)
            text += "\"" + row + "\"\n";
        return text;
    }

    TemporaryFolder folder_;
    std::string file_ = folder_.file("CallHistory.csv");
};

TEST_F(HistoryFile, PutsTheOpenProjectAtItsHead) {
    EXPECT_EQ(open(""), lines({"More files .."})) << "no project yet";
    EXPECT_EQ(open("/a.mdb"), lines({"More files ..", "/a.mdb"}));
    EXPECT_EQ(open("/b.mdb"), lines({"More files ..", "/b.mdb", "/a.mdb"}));
    EXPECT_EQ(open("/a.mdb"), lines({"More files ..", "/a.mdb", "/b.mdb"})) << "moves up";
    EXPECT_EQ(open("/a.mdb"), lines({"More files ..", "/a.mdb", "/b.mdb"})) << "is there already";
    EXPECT_EQ(open("/A.mdb"), lines({"More files ..", "/A.mdb", "/a.mdb", "/b.mdb"})) << "other letters, other file";
}

TEST_F(HistoryFile, KeepsTenPaths) {
    Rows rows{"More files .."};
    for (int i = 1; i <= 10; ++i)
        rows.push_back("/" + std::to_string(i) + ".mdb");
    writeText(file_, lines(rows));
    const Rows eleven{"More files ..", "/new.mdb", "/1.mdb", "/2.mdb", "/3.mdb", "/4.mdb",
                      "/5.mdb",        "/6.mdb",   "/7.mdb", "/8.mdb", "/9.mdb"};
    EXPECT_EQ(open("/new.mdb"), lines(eleven)) << "the tenth falls away";
    EXPECT_NE(open("/9.mdb").find("/8.mdb"), std::string::npos) << "nothing falls away for one of the ten";
    EXPECT_EQ(ModUtilities_ReadHistory().size(), 10u) << "the list shows nine of them";
}

TEST_F(HistoryFile, DropsBlankRowsAndOtherLineEnds) {
    writeText(file_, "\"More files ..\"\r\n\"\"\r\n\r\n\"/a.mdb\"\r\n\"More files ..\"\r\n\"/b.mdb\"");
    EXPECT_EQ(open("/c.mdb"), lines({"More files ..", "/c.mdb", "/a.mdb", "/b.mdb"}));
}

TEST_F(HistoryFile, IsMadeWhenItIsReadFirst) {
    gsProjectPath = "/a.mdb";
    EXPECT_EQ(ModUtilities_ReadHistory(), (Rows{"More files ..", "/a.mdb"}));
    EXPECT_EQ(readText(file_), lines({"More files ..", "/a.mdb"}));
}

TEST_F(HistoryFile, IsLoggedAndLeftWhereItCannotBeRead) {
    folder_.makeFolder("CallHistory.csv");
    gsProjectPath = "/a.mdb";
    ModUtilities_SaveHistory();
    EXPECT_TRUE(std::filesystem::is_directory(file_));
    const std::string log = readText(folder_.file("CS Mapping Error.log"));
    EXPECT_NE(log.find("\"ModUtilities_SaveHistory\",75,"), std::string::npos) << log;
    EXPECT_EQ(ModUtilities_ReadHistory(), Rows{"More files .."});
}

} // namespace
