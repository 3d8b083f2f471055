#include "core/RuntimeError.h"
#include "core/cPathControl.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TextFile.h"

#include <gtest/gtest.h>

namespace {

TEST(PathControl, CreatesDefaultsInTheOrderOfTheKeys) {
    const TemporaryFolder folder;
    const std::string program = folder.makeFolder("program");
    const std::string common = folder.makeFolder("common");
    const cPathControl paths(program, common);
    const std::string data = common + "/Callscope";
    EXPECT_EQ(readText(program + "/Paths.txt"),
              "AppFolder=" + data + "\nProjectFolder=" + data + "/Projects\nBackupFolder=" + data +
                  "/Backup\nSystemFolder=" + program + "\nAccountFolder=" + data + "/Account\n");
    EXPECT_EQ(paths.GetDefaultDataPath(), data);
    EXPECT_EQ(paths.ApplicationDataPath, data);
    EXPECT_EQ(paths.ApplicationRootPath, program);
    EXPECT_EQ(paths.AccountDataPath, data + "/Account");
    EXPECT_EQ(paths.SystemDataPath, data + "/System");
}

TEST(PathControl, ReadsOnlyItsFiveKeys) {
    const TemporaryFolder folder;
    writeText(folder.file("Paths.txt"), "\r\n"
                                        "  AppFolder =  /a b/c/ \r\n"
                                        "no equals sign\n"
                                        "Unknown=/u\n"
                                        "projectfolder=/other/case\n"
                                        "BackupFolder=/first\n"
                                        "BackupFolder=/again=with equals\n"
                                        "SystemFolder=\\windows\\style\\\n"
                                        "=/nothing");
    const cPathControl paths(folder.text(), folder.text());
    EXPECT_EQ(paths.ApplicationDataPath, "/a b/c");
    EXPECT_EQ(paths.ProjectDataPath, "") << "keys are told apart by case";
    EXPECT_EQ(paths.BackupFolderPath, "/again=with equals")
        << "the first equals sign ends the key, the last line counts";
    EXPECT_EQ(paths.ApplicationRootPath, "/windows/style");
    EXPECT_EQ(paths.AccountDataPath, "");
}

TEST(PathControl, ReadsAFileThatBeginsWithAByteOrderMark) {
    const TemporaryFolder folder;
    writeText(folder.file("Paths.txt"), "\xEF\xBB\xBF"
                                        "AppFolder=/a\n");
    EXPECT_EQ(cPathControl(folder.text(), folder.text()).ApplicationDataPath, "/a");
}

TEST(PathControl, HasNoDefaultDataPathWithoutTheCommonFolder) {
    const TemporaryFolder folder;
    EXPECT_EQ(cPathControl(folder.text(), folder.file("missing")).GetDefaultDataPath(), "");
}

TEST(PathControl, NamesTheFileThatItCannotUse) {
    const TemporaryFolder folder;
    const auto failure = [&](const std::string& programFolder) -> std::string {
        try {
            cPathControl(programFolder, folder.text());
        } catch (const RuntimeError& error) {
            return error.description();
        }
        return "no error";
    };
    EXPECT_NE(failure(folder.file("missing")).find(folder.file("missing/Paths.txt")), std::string::npos);
    folder.makeFolder("odd/Paths.txt");
    EXPECT_NE(failure(folder.file("odd")).find(folder.file("odd/Paths.txt")), std::string::npos);
}

TEST(Paths, JoinWithExactlyOneSeparator) {
    EXPECT_EQ(joinPath("/a", "b"), "/a/b");
    EXPECT_EQ(joinPath("/a/", "/b/c"), "/a/b/c");
    EXPECT_EQ(joinPath("/a\\", "\\b"), "/a/b");
    EXPECT_EQ(joinPath("/", "b"), "/b");
}

TEST(Paths, UnderstandBothSeparatorsAndUnicode) {
    EXPECT_EQ(toPath("a\\b/c"), std::filesystem::path("a/b/c"));
    EXPECT_EQ(toText(toPath("/d\xC3\xA9p\xC3\xB4t\\\xE2\x82\xAC")), "/d\xC3\xA9p\xC3\xB4t/\xE2\x82\xAC");
}

} // namespace
