#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

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
        return faultOf([&] { system->openRecordset(statement); });
    }

    long faultOf(const std::function<void()>& action) {
        try {
            action();
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

TEST_F(Links, MayBeLedToAnotherFile) {
    const std::string april = folder.file("April.mdb");
    workspace->createDatabase(april)->execute("SELECT * INTO TblCalls FROM [" + projectPath + "].[TblTeleItem]");
    TableDef moved = *system->tableDefs().find("TblTeleItem_Link");
    moved.connect = "MS Access;DATABASE=" + folder.file("none.mdb");
    EXPECT_EQ(faultOf([&] { system->tableDefs().refreshLink(moved); }), 3024);
    moved.connect = "MS Access;DATABASE=" + april;
    EXPECT_EQ(faultOf([&] { system->tableDefs().refreshLink(moved); }), 3078);
    EXPECT_EQ(system->openRecordset("TblTeleItem_Link")->RecordCount(), 1);
    moved.sourceTableName = "TblCalls";
    system->tableDefs().refreshLink(moved);
    std::filesystem::remove(projectPath);
    EXPECT_EQ(system->openRecordset("TblTeleItem_Link")->value("1141").asText(), "1224");
    EXPECT_EQ(system->tableDefs().find("TblTeleItem_Link")->sourceTableName, "TblCalls");
    moved.name = "Nothing";
    EXPECT_EQ(faultOf([&] { system->tableDefs().refreshLink(moved); }), 3265);
}

TEST_F(Links, LeadThroughLinksButNotInARing) {
    const auto third = workspace->createDatabase(folder.file("third.mdb"));
    TableDef onward = third->createTableDef("Onward");
    onward.connect = "MS Access;DATABASE=" + folder.file("ukmap.mdb") + ";PWD=s";
    onward.sourceTableName = "TblTeleItem_Link";
    third->tableDefs().append(onward);
    third->execute("UPDATE Onward SET Calls = 9");
    EXPECT_EQ(system->openRecordset("TblTeleItem_Link")->value("Calls"), Value(9));
    TableDef ring = *system->tableDefs().find("TblTeleItem_Link");
    ring.connect = "MS Access;DATABASE=" + folder.file("third.mdb");
    ring.sourceTableName = "Onward";
    system->tableDefs().refreshLink(ring);
    EXPECT_EQ(faultOf("TblTeleItem_Link"), 3078);
    system->tableDefs().remove("TblTeleItem_Link");
    EXPECT_EQ(faultOf("TblTeleItem_Link"), 3078);
}

TEST_F(Links, WhoseSourceOrPasswordHasChangedSayWhichLinkItIs) {
    {
        const auto project = workspace->openDatabase(projectPath, Workspace::Access::Shared, "MS Access;PWD=p");
        project->execute("SELECT * INTO Other FROM TblTeleItem");
        project->execute("DROP TABLE TblTeleItem");
    }
    EXPECT_EQ(faultOf("SELECT * FROM TblTeleItem_Link"), 3078);
    EXPECT_NE(lastWords.find("TblTeleItem_Link"), std::string::npos) << lastWords;
    EXPECT_TRUE(system->tableDefs().find("TblTeleItem_Link")->fields.empty());
    system->close();
    std::filesystem::remove(projectPath);
    workspace->createDatabase(projectPath, "MS Access;PWD=new")->execute("CREATE TABLE TblTeleItem (N Long)");
    system = workspace->openDatabase(folder.file("ukmap.mdb"), Workspace::Access::Shared, "MS Access;PWD=s");
    EXPECT_EQ(faultOf("SELECT * FROM TblTeleItem_Link"), 3031);
    EXPECT_NE(lastWords.find("TblTeleItem_Link"), std::string::npos) << lastWords;
    EXPECT_NE(lastWords.find(projectPath), std::string::npos) << lastWords;
}

TEST_F(Links, ARecordsetKeepsTheFileOpenThatItEdits) {
    const auto rows = system->openRecordset("TblTeleItem_Link");
    const auto path = system->openRecordset("SELECT * FROM [" + projectPath + "].[TblTeleItem]");
    system->tableDefs().remove("TblTeleItem_Link");
    workspace->createDatabase(folder.file("b.mdb"))->close();
    rows->Edit();
    rows->set("Calls", 8);
    rows->Update();
    path->Requery();
    EXPECT_EQ(path->value("Calls"), Value(8));
}

} // namespace
