#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

class TableDefinitions : public testing::Test {
protected:
    TemporaryFolder folder;
    std::shared_ptr<Workspace> workspace = Workspace::create();
    std::shared_ptr<Database> database = workspace->createDatabase(folder.file("a.mdb"));
};

TEST_F(TableDefinitions, ReadBackAsTheyWereAppended) {
    TableDef capture = database->createTableDef("TblDataCapture");
    capture.fields = {Field{"ProjectName", FieldType::Text, 250, false, false, {}},
                      Field{"Captured", FieldType::Date, 0, false, true, {}},
                      Field{"AnimatePeriod", FieldType::Single, 0, true, true, "0"}};
    database->tableDefs().append(capture);
    database->close();
    database = workspace->openDatabase(folder.file("a.mdb"));
    const TableDef* found = database->tableDefs().find("tbldatacapture");
    ASSERT_NE(found, nullptr);
    ASSERT_EQ(found->fields.size(), capture.fields.size());
    for (std::size_t i = 0; i < capture.fields.size(); ++i) {
        const Field& expected = capture.fields[i];
        const Field& actual = found->fields[i];
        EXPECT_EQ(actual.name, expected.name);
        EXPECT_EQ(actual.type, expected.type) << expected.name;
        EXPECT_EQ(actual.size, expected.size) << expected.name;
        EXPECT_EQ(actual.required, expected.required) << expected.name;
        EXPECT_EQ(actual.allowZeroLength, expected.allowZeroLength) << expected.name;
        EXPECT_EQ(actual.defaultValue, expected.defaultValue) << expected.name;
    }
    EXPECT_THROW(database->execute("INSERT INTO TblDataCapture (ProjectName, AnimatePeriod) VALUES ('', 1)"),
                 DatabaseError);
    EXPECT_THROW(database->execute("INSERT INTO TblDataCapture (AnimatePeriod) VALUES (NULL)"), DatabaseError);
    database->execute("INSERT INTO TblDataCapture (ProjectName) VALUES ('x')");
    EXPECT_EQ(database->openRecordset("TblDataCapture")->value("AnimatePeriod").asDouble(), 0.0);
}

TEST_F(TableDefinitions, GrowByAFieldAndGo) {
    database->execute("CREATE TABLE TblTeleItem (CalledNo Text(20))");
    database->execute("INSERT INTO TblTeleItem VALUES ('0800')");
    database->tableDefs().appendField("TblTeleItem", Field{"PayPhone", FieldType::Text, 1, false, true, {}});
    EXPECT_TRUE(database->openRecordset("TblTeleItem")->value("PayPhone").isNull());
    EXPECT_THROW(
        database->tableDefs().appendField("TblTeleItem", Field{"payphone", FieldType::Text, 1, false, true, {}}),
        DatabaseError);
    database->tableDefs().remove("TblTeleItem");
    EXPECT_EQ(database->tableDefs().count(), 0u);
    EXPECT_THROW(database->tableDefs().remove("TblTeleItem"), DatabaseError);
}

TEST_F(TableDefinitions, HideWhatIsTheEngines) {
    TableDef own = database->createTableDef("MSysLinks");
    own.fields = {Field{"Name", FieldType::Text, 5, false, true, {}}};
    EXPECT_THROW(database->tableDefs().append(own), DatabaseError);
    EXPECT_THROW(database->openRecordset("SELECT * FROM sqlite_master"), DatabaseError);
    EXPECT_THROW(database->openRecordset("MSysLinks"), DatabaseError);
}

} // namespace
