#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

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

} // namespace
