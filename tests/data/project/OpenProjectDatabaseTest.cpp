#include "data/project/OpenProjectDatabase.h"

#include "core/ModDeclarations.h"
#include "data/project/UpdateMappingVersion.h"
#include "data/project/UpgradeTeleItemTable.h"
#include "tests/support/ScriptedPrompts.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace {

using Rows = std::vector<std::string>;

std::string bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

TEST(OpenProjectDatabase, RefusesWhatIsNoProjectAndChangesNothing) {
    const SmallInstallation installation;
    defaultWorkspace()->createDatabase(installation.file("other password.mdb"), "MS Access;PWD=Sesame")->close();
    std::ofstream(installation.file("letter.mdb")) << "Dear Sir or Madam, this is no database.";
    const auto before = gdbProject;
    gsProjectPassword = "as before";
    for (const char* name : {"missing.mdb", "other password.mdb", "letter.mdb"}) {
        const std::string bytes = bytesOf(installation.file(name));
        EXPECT_FALSE(OpenProjectDatabase(installation.file(name))) << name;
        EXPECT_EQ(gdbProject, before) << name;
        EXPECT_EQ(gsProjectPassword, "as before") << name;
        EXPECT_EQ(bytesOf(installation.file(name)), bytes) << name;
    }
    EXPECT_FALSE(std::ifstream(installation.file("missing.mdb")).good()) << "nothing is made in its place";
    EXPECT_EQ(installation.logLines(), Rows{});
}

/// A project as Callscope wrote it before this program's tables and columns existed.
class OldProject : public testing::Test {
protected:
    void SetUp() override {
        gdbProject->execute("DROP TABLE TblTeleItem");
        gdbProject->execute(
            "CREATE TABLE TblTeleItem (CalledNo Text(20), Legs Integer, AnswerTime Long, ActualDuration "
            "Long, Duration1 Long)");
        for (const char* call :
             {"'none', 0, 7, 100, 10", "'one', 1, 8, 100, 10", "'two', 2, 9, 100, 10", "'unknown', NULL, 6, 100, 10"})
            gdbProject->execute(std::string("INSERT INTO TblTeleItem VALUES (") + call + ")");
        gdbSystem->execute("INSERT INTO TblVersion VALUES (1.05)");
        gdbSystem->execute("INSERT INTO TblVersion VALUES (1.25)");
    }

    SmallInstallation installation;
    ScriptedPrompts prompts;
};

TEST_F(OldProject, IsBroughtUpToDateOnOpening) {
    gdbProject->execute("DROP TABLE TblProjectInfo");
    ASSERT_TRUE(OpenProjectDatabase(gsProjectPath));
    EXPECT_EQ(gsProjectPassword, "QzMarlKey");
    EXPECT_EQ(rowsOf(*gdbProject, "SELECT CalledNo, TotalAnswerTime, PayPhone FROM TblTeleItem ORDER BY CalledNo"),
              (Rows{"none|7|null", "one|8|null", "two|90|null", "unknown|6|null"}));
    const TableDef* calls = gdbProject->tableDefs().find("TblTeleItem");
    ASSERT_NE(calls, nullptr);
    EXPECT_EQ(calls->findField("PayPhone")->size, 1);
    EXPECT_EQ(calls->findField("TotalAnswerTime")->type, FieldType::Single);
    EXPECT_EQ(rowsOf(*gdbProject, "SELECT MappingVersion FROM TblProjectInfo"), Rows{"1.25"});
    EXPECT_EQ(prompts.texts, Rows{});
    EXPECT_EQ(installation.logLines(), Rows{});
}

TEST_F(OldProject, KeepsAnswerTimesThatItAlreadyHas) {
    gdbProject->execute("ALTER TABLE TblTeleItem ADD COLUMN TotalAnswerTime Single");
    gdbProject->execute("UPDATE TblTeleItem SET TotalAnswerTime = 1");
    UpgradeTeleItemTable(gsProjectPath, "QzMarlKey");
    EXPECT_EQ(rowsOf(*gdbProject, "SELECT DISTINCT TotalAnswerTime, PayPhone FROM TblTeleItem"), Rows{"1|null"});
}

TEST_F(OldProject, TakesMissingColumnsOfTheTemplate) {
    gdbProject->execute("DROP TABLE TblProjectInfo");
    gdbProject->execute("CREATE TABLE TblProjectInfo (Remark Text(10))");
    gdbProject->execute("INSERT INTO TblProjectInfo VALUES ('kept')");
    ASSERT_TRUE(OpenProjectDatabase(gsProjectPath));
    EXPECT_EQ(rowsOf(*gdbProject, "SELECT Remark, MappingVersion FROM TblProjectInfo"), Rows{"kept|1.25"});
}

TEST_F(OldProject, OpensWithoutTheTemplateButSaysSo) {
    std::remove(installation.file("CSProject.bak").c_str());
    EXPECT_TRUE(OpenProjectDatabase(gsProjectPath));
    EXPECT_EQ(prompts.texts, Rows{"Please check that you have the latest support files."});
    EXPECT_EQ(installation.logLinesWith("CSProject.bak"), 1);
}

struct VersionCase {
    const char* name;
    const char* project; ///< MappingVersion; null for no row
    const char* after;
};

TEST_F(OldProject, TakesTheSystemsVersionOnlyUpwards) {
    const VersionCase cases[] = {{"no row", nullptr, "1.25"},    {"older", "'1.2'", "1.25"},
                                 {"the same", "'1.25'", "1.25"}, {"newer", "'1.3'", "1.3"},
                                 {"null", "NULL", "1.25"},       {"no number", "'draft'", "1.25"}};
    for (const VersionCase& version : cases) {
        gdbProject->execute("DELETE FROM TblProjectInfo");
        if (version.project)
            gdbProject->execute(std::string("INSERT INTO TblProjectInfo VALUES (") + version.project + ")");
        UpdateMappingVersion();
        EXPECT_EQ(rowsOf(*gdbProject, "SELECT MappingVersion FROM TblProjectInfo"), Rows{version.after})
            << version.name;
    }
}

TEST_F(OldProject, HandsItsSpecialGroupsToTheGroupUpgradeOnce) {
    const auto groups = defaultWorkspace()->openDatabase(installation.file("CustomerGroups.mdb"),
                                                         Workspace::Access::Shared, ProjectConnect);
    for (const char* row : {"'ACC', 'Mobile', 'On the road'", "'ACC', 'VOIP', 'On the road'",
                            "'ACC', 'International', ''", "'ACC', 'LS1', 'Leeds'", "'ELSE', 'Other', 'Rest'"})
        groups->execute(std::string("INSERT INTO TblGroups (TallyAccount, Reference, GroupName) VALUES (") + row + ")");
    groups->execute("INSERT INTO tblMappingGroupSetup (TALLYACCOUNT, DataType) VALUES ('ACC', '3')");
    std::vector<SpecialGroups> handed;
    setSpecialGroupUpgrade([&](const SpecialGroups& special) { handed.push_back(special); });
    gsAccount.clear();
    gdbProject->execute("UPDATE Tbl50 SET TallyAccount = ' ACC '");
    UpdateMappingVersion();
    UpdateMappingVersion();
    ASSERT_EQ(handed.size(), 1U);
    EXPECT_EQ(handed[0].names, Rows{"On the road"});
    EXPECT_EQ(handed[0].dataType, 3);
    EXPECT_EQ(gsAccount, "ACC");

    setSpecialGroupUpgrade({});
    gdbProject->execute("UPDATE TblProjectInfo SET MappingVersion = '1.05'");
    UpdateMappingVersion();
    EXPECT_EQ(installation.logLinesWith("On the road"), 1) << "without an upgrade at hand the log tells what was left";
    EXPECT_EQ(rowsOf(*gdbProject, "SELECT MappingVersion FROM TblProjectInfo"), Rows{"1.25"});
}

} // namespace
