#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

class Links : public testing::Test {
protected:
    void SetUp() override {
        const auto project = workspace->createDatabase(projectPath, "MS Access;PWD=p");
        project->execute("CREATE TABLE TblTeleItem ([1141] Text(20), Calls Long)");
        project->execute("INSERT INTO TblTeleItem VALUES ('1224', 3)");
        system = workspace->createDatabase(folder.file("ukmap.mdb"), "MS Access;PWD=s");
        link("TblTeleItem_Link", projectPath, "TblTeleItem");
    }

    void link(const std::string& name, const std::string& path, const std::string& source) {
        TableDef definition = system->createTableDef(name);
        definition.connect = "MS Access;DATABASE=" + path + ";PWD=p";
        definition.sourceTableName = source;
        system->tableDefs().append(definition);
    }

    long faultOf(const std::string& statement) {
        try {
            system->openRecordset(statement);
            return 0;
        } catch (const DatabaseError& error) {
            lastWords = error.description();
            return error.number();
        }
    }

    TemporaryFolder folder;
    std::shared_ptr<Workspace> workspace = Workspace::create();
    std::string projectPath = folder.file("March.mdb");
    std::shared_ptr<Database> system;
    std::string lastWords;
};

TEST_F(Links, ReadAndWriteTheTableOfTheOtherFile) {
    system->execute("UPDATE TblTeleItem_Link SET Calls = Calls + 1");
    system->execute("INSERT INTO TblTeleItem_Link VALUES ('1225', 10)");
    const auto rows = system->openRecordset("SELECT * FROM TblTeleItem_Link ORDER BY Calls");
    ASSERT_EQ(rows->RecordCount(), 2);
    rows->Edit();
    rows->set("Calls", 7);
    rows->Update();
    const auto project = workspace->openDatabase(projectPath, Workspace::Access::Shared, "MS Access;PWD=p");
    EXPECT_EQ(project->openRecordset("SELECT Sum(Calls) FROM TblTeleItem")->value(0).asInteger(), 17);
}

TEST_F(Links, AreListedWithTheFieldsOfTheirSourceAndSurviveReopening) {
    system->close();
    system = workspace->openDatabase(folder.file("ukmap.mdb"), Workspace::Access::Shared, "MS Access;PWD=s");
    const TableDef* found = system->tableDefs().find("tblteleitem_link");
    ASSERT_NE(found, nullptr);
    EXPECT_TRUE(found->isAttached());
    EXPECT_EQ(found->sourceTableName, "TblTeleItem");
    ASSERT_NE(found->findField("calls"), nullptr);
}

TEST_F(Links, DroppingALinkLeavesItsSource) {
    system->execute("DROP TABLE TblTeleItem_Link");
    EXPECT_EQ(faultOf("SELECT * FROM TblTeleItem_Link"), 3078);
    link("TblTeleItem_Link", projectPath, "TblTeleItem");
    EXPECT_EQ(system->openRecordset("TblTeleItem_Link")->RecordCount(), 1);
}

TEST_F(Links, AMovedFileIsNamedWithTheLink) {
    workspace->openDatabase(projectPath, Workspace::Access::Shared, "MS Access;PWD=p")->close();
    std::filesystem::rename(projectPath, folder.file("moved.mdb"));
    EXPECT_EQ(faultOf("SELECT * FROM TblTeleItem_Link"), 3024);
    EXPECT_NE(lastWords.find("TblTeleItem_Link"), std::string::npos) << lastWords;
    EXPECT_NE(lastWords.find(projectPath), std::string::npos) << lastWords;
}

TEST_F(Links, AreRefusedWhereTheyLeadNowhere) {
    EXPECT_THROW(link("A", projectPath, "TblNone"), DatabaseError);
    EXPECT_THROW(link("A", folder.file("none.mdb"), "TblTeleItem"), DatabaseError);
    EXPECT_THROW(link("TblTeleItem_Link", projectPath, "TblTeleItem"), DatabaseError);
    EXPECT_EQ(system->tableDefs().find("A"), nullptr);
}

TEST_F(Links, TablesOfOtherFilesAreReachedByTheirPath) {
    system->execute("SELECT * INTO TblCopy FROM [" + projectPath + "].[TblTeleItem]");
    EXPECT_EQ(system->openRecordset("TblCopy")->value("1141").asText(), "1224");
    system->execute("INSERT INTO [" + projectPath + "].[TblTeleItem] (Calls) SELECT Calls FROM TblCopy");
    EXPECT_EQ(system->openRecordset("TblTeleItem_Link")->RecordCount(), 2);
}

} // namespace
