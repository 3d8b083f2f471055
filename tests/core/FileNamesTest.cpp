#include "core/FileNames.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TextFile.h"

#include <gtest/gtest.h>

namespace {

TEST(FileNames, FindAFileInAnyCase) {
    const TemporaryFolder folder;
    writeText(folder.file("UKMap.BAK"), "x");
    EXPECT_EQ(fileInFolder(folder.text(), "ukmap.bak"), folder.file("UKMap.BAK"));
    EXPECT_TRUE(fileExists(folder.text(), "UKMAP.bak"));
    EXPECT_EQ(fileInFolder(folder.text(), "ukmap.mdb"), folder.file("ukmap.mdb"));
    EXPECT_FALSE(fileExists(folder.text(), "ukmap.mdb"));

    writeText(folder.file("ukmap.bak"), "y");
    EXPECT_EQ(fileInFolder(folder.text(), "ukmap.bak"), folder.file("ukmap.bak")) << "the exact spelling comes first";
    EXPECT_EQ(fileInFolder(folder.text(), "uKMap.bak"), folder.file("UKMap.BAK"));
}

TEST(FileNames, TakeNoFolderForAFile) {
    const TemporaryFolder folder;
    folder.makeFolder("ukmap.mdb");
    EXPECT_FALSE(fileExists(folder.text(), "ukmap.mdb"));
    EXPECT_FALSE(fileExists(folder.file("missing"), "ukmap.mdb"));
}

TEST(FileNames, TellWhetherAPathLeadsToAFile) {
    const TemporaryFolder folder;
    writeText(folder.file("CustomerGroups.mdb"), "x");
    folder.makeFolder("Log");
    EXPECT_FALSE(FileExistsInFolder(""));
    EXPECT_TRUE(FileExistsInFolder(folder.file("customergroups.MDB")));
    EXPECT_TRUE(FileExistsInFolder(folder.text() + "\\CustomerGroups.mdb"));
    EXPECT_FALSE(FileExistsInFolder(folder.file("comgroups.mdb")));
    EXPECT_FALSE(FileExistsInFolder(folder.file("Log"))) << "a folder";
    EXPECT_FALSE(FileExistsInFolder(folder.text() + "/")) << "no name";
}

} // namespace
