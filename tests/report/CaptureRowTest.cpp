#include "report/CaptureRow.h"

#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "report/SelectedData.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

TEST(CaptureRow, AProjectNobodyCapturedIsNotCaptured) {
    const SmallInstallation installation;
    EXPECT_FALSE(isCaptured()) << "neither database has the table";
    recordCapture();
    EXPECT_TRUE(isCaptured()) << "its table is made";
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT ProjectName FROM TblDataCapture"), capturedProjectName());
    EXPECT_EQ(valueOf(*gdbProject, "SELECT Count(*) FROM TblDataCapture"), "1");
}

TEST(CaptureRow, OtherStampsAndOtherPlacesAreAnotherProject) {
    const SmallInstallation installation;
    const auto captured = [](const char* change) {
        recordCapture();
        gdbSystem->execute(change);
        return isCaptured();
    };
    EXPECT_TRUE(captured("UPDATE TblDataCapture SET MultiMaps = 2"));
    EXPECT_FALSE(captured("UPDATE TblDataCapture SET Captured = Captured + 1"));
    EXPECT_FALSE(captured("UPDATE TblDataCapture SET Captured = Null"));
    EXPECT_FALSE(captured("UPDATE TblDataCapture SET Captured = 0"));
    EXPECT_FALSE(captured("UPDATE TblDataCapture SET ProjectName = 'elsewhere.mdb'"));
    EXPECT_FALSE(captured("DELETE FROM TblDataCapture"));
    recordCapture();
    EXPECT_TRUE(isCaptured()) << "a missing row is made";
    gdbProject->execute("DELETE FROM TblDataCapture");
    EXPECT_FALSE(isCaptured());
}

TEST(CaptureRow, TheSecondOfTwoProjectsTakesTheRow) {
    const SmallInstallation installation;
    recordCapture();
    gsBoundaryType = "CSG";
    SaveSelectedData({});
    const std::string first = gsProjectPath, second = installation.file("second.mdb");
    gdbProject->close();
    std::filesystem::copy_file(first, second);
    gsProjectPath = second;
    reopenProject();
    EXPECT_FALSE(isCaptured()) << "a copy has the stamp of the first, but lies elsewhere";
    recordCapture();
    EXPECT_TRUE(isCaptured());
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT BoundaryType1 FROM TblDataCapture"), "null")
        << "what the first was asked for is forgotten";
    gdbProject->close();
    gsProjectPath = first;
    reopenProject();
    gdbSystem->execute("UPDATE TblDataCapture SET Captured = Captured + 1");
    EXPECT_FALSE(isCaptured());
}

TEST(CaptureRow, OnlyTheLast250CharactersOfALongPathCount) {
    gsProjectPath = "/" + std::string(300, 'a') + "/ü.mdb";
    EXPECT_EQ(capturedProjectName(), std::string(244, 'a') + "/ü.mdb");
    gsProjectPath = "  short.mdb ";
    EXPECT_EQ(capturedProjectName(), "short.mdb");
    gsProjectPath = std::string(10, 'b') + std::string(200, ' ') + std::string(50, 'c');
    EXPECT_EQ(capturedProjectName(), std::string(50, 'c'));
    gsProjectPath.clear();
}

} // namespace
