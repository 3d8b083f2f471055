#include "core/cPathControl.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TextFile.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class PathControlFiles : public testing::Test {
protected:
    PathControlFiles() : paths_(folder_.makeFolder("program"), folder_.text()) {
        source_ = folder_.makeFolder("source");
        target_ = folder_.makeFolder("target");
    }
    void put(const std::string& name, const std::string& text = "x") const { writeText(source_ + "/" + name, text); }
    Names filesOf(const std::string& folder) const {
        Names names = paths_.ListAllFilesInDirectory(folder);
        names.erase(names.begin());
        return names;
    }

    TemporaryFolder folder_;
    cPathControl paths_;
    std::string source_, target_;
};

TEST_F(PathControlFiles, ListsFilesBehindAnEmptyElement) {
    EXPECT_EQ(paths_.ListAllFilesInDirectory(source_), Names{""});
    EXPECT_EQ(paths_.ListAllFilesInDirectory(folder_.file("missing")), Names{""});
    put("b.txt");
    put("a.txt");
    fs::create_directory(source_ + "/folder");
    EXPECT_EQ(paths_.ListAllFilesInDirectory(source_), (Names{"", "a.txt", "b.txt"}));
}

TEST_F(PathControlFiles, TellsTheExtension) {
    EXPECT_EQ(paths_.GetFileExtension("March.final.mdb"), "mdb");
    EXPECT_EQ(paths_.GetFileExtension("March"), "");
    EXPECT_EQ(paths_.GetFileExtension("March."), "");
    EXPECT_EQ(paths_.GetFileExtension(""), "");
}

TEST_F(PathControlFiles, TriesWritingWithoutATrace) {
    EXPECT_TRUE(paths_.CanWriteToOstelSuiteAppPath(source_));
    EXPECT_TRUE(fs::is_empty(source_));
    put("Test.dat", "mine");
    EXPECT_TRUE(paths_.CanWriteToOstelSuiteAppPath(source_));
    EXPECT_EQ(readText(source_ + "/Test.dat"), "mine");
    EXPECT_EQ(filesOf(source_), Names{"Test.dat"});
    EXPECT_FALSE(paths_.CanWriteToOstelSuiteAppPath(folder_.file("missing")));
}

TEST_F(PathControlFiles, CopiesAndDeletesWithAStatus) {
    put("a.txt", "new");
    EXPECT_EQ(paths_.CopyFile(source_ + "/a.txt", target_), 0);
    EXPECT_EQ(readText(target_ + "/a.txt"), "new");
    put("a.txt", "newer");
    EXPECT_EQ(paths_.CopyFile(source_ + "/a.txt", target_ + "/a.txt"), 0) << "over the old one";
    EXPECT_EQ(readText(target_ + "/a.txt"), "newer");
    EXPECT_NE(paths_.CopyFile(source_ + "/missing", target_), 0);

    EXPECT_EQ(paths_.CopyFolder(source_, target_), 0);
    EXPECT_EQ(readText(target_ + "/source/a.txt"), "newer") << "into a folder that exists";
    EXPECT_EQ(paths_.CopyFolder(source_, folder_.file("third")), 0);
    EXPECT_EQ(readText(folder_.file("third/a.txt")), "newer") << "under the name of one that does not";
    EXPECT_NE(paths_.CopyFolder(source_, source_ + "/within"), 0);
    EXPECT_NE(paths_.CopyFolder(folder_.file("missing"), target_), 0);

    EXPECT_EQ(paths_.DeleteFolder(source_), 0);
    EXPECT_FALSE(fs::exists(source_));
    EXPECT_NE(paths_.DeleteFolder(source_), 0);
}

TEST_F(PathControlFiles, MovesApplicationDataInTwoSteps) {
    for (const char* name : {"ukmap.mdb", "Notes.TXT", "setup.ini", "CallHistory.csv", "LastPath.csv", "map.bin",
                             "Paths.txt", "text.dat", "cstsandcs.txt"})
        put(name);
    fs::create_directories(source_ + "/LOG");
    put("LOG/old.log");
    fs::create_directories(source_ + "/Other");

    EXPECT_EQ(paths_.CopyFilesAndFolders(source_, target_, 0, false), 0);
    EXPECT_EQ(filesOf(target_), (Names{"CallHistory.csv", "LastPath.csv", "Notes.TXT", "setup.ini", "ukmap.mdb"}));
    EXPECT_TRUE(fs::exists(target_ + "/LOG/old.log"));
    EXPECT_FALSE(fs::exists(target_ + "/Other"));
    EXPECT_EQ(readText(target_ + "/LastPath.csv"), "\"" + target_ + "\"\n");
    EXPECT_EQ(paths_.ApplicationDataPath, target_);
    EXPECT_NE(readText(folder_.file("program/Paths.txt")).find("AppFolder=" + target_ + "\n"), std::string::npos);

    EXPECT_EQ(paths_.CopyFilesAndFolders(source_, target_, 0, true), 0);
    EXPECT_EQ(filesOf(source_), (Names{"Paths.txt", "cstsandcs.txt", "map.bin", "text.dat"}));
    EXPECT_FALSE(fs::exists(source_ + "/LOG"));
    EXPECT_TRUE(fs::exists(source_ + "/Other"));
}

TEST_F(PathControlFiles, MovesDatabasesAndPointsThePropertyThere) {
    struct Case {
        int type;
        std::string cPathControl::*property;
    };
    const Case cases[] = {
        {1, &cPathControl::ProjectDataPath}, {2, &cPathControl::BackupFolderPath}, {4, &cPathControl::AccountDataPath}};
    put("March.MDB");
    put("UKMap.mdb");
    put("notes.txt");
    for (const Case& c : cases) {
        EXPECT_EQ(paths_.CopyFilesAndFolders(source_, target_, c.type, false), 0);
        EXPECT_EQ(paths_.*c.property, target_) << c.type;
    }
    EXPECT_EQ(filesOf(target_), Names{"March.MDB"}) << "the parent product moves its own";
    EXPECT_EQ(paths_.CopyFilesAndFolders(source_, source_, 1, true), 0);
    EXPECT_TRUE(fs::exists(source_ + "/March.MDB")) << "a move onto itself deletes nothing";
    EXPECT_EQ(paths_.CopyFilesAndFolders(source_, target_, 1, true), 0);
    EXPECT_FALSE(fs::exists(source_));
}

TEST_F(PathControlFiles, OnlySavesForOtherTypes) {
    put("March.mdb");
    paths_.BackupFolderPath = "/elsewhere";
    for (const int type : {-1, 5}) {
        EXPECT_EQ(paths_.CopyFilesAndFolders(source_, target_, type, true), 0);
        EXPECT_TRUE(fs::is_empty(target_));
        EXPECT_TRUE(fs::exists(source_ + "/March.mdb"));
    }
    EXPECT_EQ(cPathControl(folder_.file("program"), folder_.text()).BackupFolderPath, "/elsewhere");
    paths_.ApplicationRootPath = folder_.file("missing");
    EXPECT_NE(paths_.SavePathSettingsFile(), 0);
}

} // namespace
