#include "core/CallHistory.h"
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

} // namespace
