#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace {

class Transactions : public testing::Test {
protected:
    void SetUp() override { database->execute("CREATE TABLE T (N Long)"); }
    long rows() { return database->openRecordset("T")->RecordCount(); }

    TemporaryFolder folder;
    std::shared_ptr<Workspace> workspace = Workspace::create();
    std::shared_ptr<Database> database = workspace->createDatabase(folder.file("a.mdb"));
};

TEST_F(Transactions, NestAndRollBack) {
    workspace->beginTrans();
    database->execute("INSERT INTO T VALUES (1)");
    {
        WorkspaceTransaction inner(*workspace);
        database->execute("INSERT INTO T VALUES (2)");
        EXPECT_EQ(rows(), 2);
    }
    EXPECT_EQ(rows(), 1);
    workspace->commitTrans();
    EXPECT_EQ(rows(), 1);
    EXPECT_THROW(workspace->commitTrans(), DatabaseError);
}

TEST_F(Transactions, AFailingStatementInsideIsUndoneAlone) {
    WorkspaceTransaction transaction(*workspace);
    database->execute("INSERT INTO T VALUES (1)");
    EXPECT_THROW(database->execute("INSERT INTO T VALUES ('x')"), DatabaseError);
    EXPECT_THROW(database->execute("SELECT * INTO T FROM T"), DatabaseError);
    database->execute("INSERT INTO T VALUES (2)");
    transaction.commit();
    EXPECT_EQ(rows(), 2);
}

TEST_F(Transactions, AHandleMayBeClosedAndOpenedAgainInside) {
    WorkspaceTransaction transaction(*workspace);
    database->execute("INSERT INTO T VALUES (1)");
    database->close();
    database = workspace->openDatabase(folder.file("a.mdb"));
    EXPECT_EQ(rows(), 1);
    database->execute("INSERT INTO T VALUES (2)");
    transaction.commit();
    EXPECT_EQ(rows(), 2);
}

TEST_F(Transactions, TablesOfARolledBackTransactionAreForgotten) {
    {
        WorkspaceTransaction transaction(*workspace);
        database->execute("SELECT N INTO U FROM T");
        EXPECT_NE(database->tableDefs().find("U"), nullptr);
    }
    EXPECT_EQ(database->tableDefs().find("U"), nullptr);
    database->execute("CREATE TABLE U (Other Text(5))");
    EXPECT_EQ(database->openRecordset("U")->field(0).name, "Other");
}

TEST_F(Transactions, FilesAreLetGoWhenTheLastHandleCloses) {
    const auto second = workspace->openDatabase(folder.file("a.mdb"));
    database->close();
    EXPECT_THROW(workspace->openDatabase(folder.file("a.mdb"), Workspace::Access::Exclusive), DatabaseError);
    second->close();
    EXPECT_NO_THROW(workspace->openDatabase(folder.file("a.mdb"), Workspace::Access::Exclusive));
}

TEST_F(Transactions, FilesMayBeOpenedMadeAndLinkedInside) {
    workspace->createDatabase(folder.file("b.mdb"), "MS Access;PWD=b")->execute("CREATE TABLE Other (N Long)");
    {
        WorkspaceTransaction transaction(*workspace);
        database->execute("INSERT INTO T VALUES (1)");
        const auto other = workspace->openDatabase(folder.file("b.mdb"), Workspace::Access::Shared, "MS Access;PWD=b");
        other->execute("INSERT INTO Other SELECT N FROM [" + folder.file("a.mdb") + "].[T]");
        TableDef link = database->createTableDef("Other_Link");
        link.connect = "MS Access;DATABASE=" + folder.file("b.mdb") + ";PWD=b";
        link.sourceTableName = "Other";
        database->tableDefs().append(link);
        EXPECT_EQ(database->openRecordset("Other_Link")->RecordCount(), 1);
        workspace->createDatabase(folder.file("c.mdb"))->execute("CREATE TABLE Third (N Long)");
    }
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(database->tableDefs().find("Other_Link"), nullptr);
    const auto other = workspace->openDatabase(folder.file("b.mdb"), Workspace::Access::Shared, "MS Access;PWD=b");
    EXPECT_EQ(other->openRecordset("Other")->RecordCount(), 0);
    EXPECT_EQ(workspace->openDatabase(folder.file("c.mdb"))->tableDefs().count(), 0u);
}

TEST_F(Transactions, EditsOfARecordsetBelongToThem) {
    database->execute("INSERT INTO T VALUES (1)");
    const auto all = database->openRecordset("T");
    {
        WorkspaceTransaction outer(*workspace);
        {
            WorkspaceTransaction inner(*workspace);
            all->Edit();
            all->set(0, 2);
            all->Update();
            all->AddNew();
            all->Update();
        }
        all->Requery();
        EXPECT_EQ(all->RecordCount(), 1);
        all->AddNew();
        all->set(0, 3);
        all->Update();
        outer.commit();
    }
    EXPECT_EQ(database->openRecordset("SELECT Sum(N) FROM T")->value(0).asInteger(), 4);
}

/// A reader elsewhere holds up a commit, which loses nothing and may be tried again.
TEST_F(Transactions, ACommitThatFindsAReaderCanBeRepeated) {
    int ready[2];
    int done[2];
    ASSERT_EQ(pipe(ready), 0);
    ASSERT_EQ(pipe(done), 0);
    const pid_t reader = fork();
    if (reader == 0) {
        char byte = 'x';
        const auto mine = Workspace::create();
        const auto same = mine->openDatabase(folder.file("a.mdb"));
        mine->beginTrans();
        same->openRecordset("T");
        (void)!write(ready[1], &byte, 1);
        (void)!read(done[0], &byte, 1);
        mine->rollback();
        _exit(0);
    }
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    workspace->beginTrans();
    database->execute("INSERT INTO T VALUES (1)");
    try {
        workspace->commitTrans();
        ADD_FAILURE() << "committed under a reader";
    } catch (const DatabaseError& error) {
        EXPECT_EQ(error.number(), 3356) << error.description();
    }
    EXPECT_EQ(rows(), 1);
    ASSERT_EQ(write(done[1], &byte, 1), 1);
    waitpid(reader, nullptr, 0);
    workspace->commitTrans();
    const auto anew = Workspace::create()->openDatabase(folder.file("a.mdb"));
    EXPECT_EQ(anew->openRecordset("T")->RecordCount(), 1);
}

} // namespace
