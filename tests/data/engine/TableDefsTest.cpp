#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace {

Field field(const char* name, FieldType type, int size = 0) {
    Field made;
    made.name = name;
    made.type = type;
    made.size = size;
    return made;
}

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

TEST_F(TableDefinitions, WhatCannotBeMadeIsRefusedAndLeavesNothing) {
    const Field plain = field("N", FieldType::Long);
    struct Case {
        const char* name;
        std::string table;
        std::vector<Field> fields;
        long number;
    };
    const Case cases[] = {
        {"no fields", "T", {}, 3264},
        {"two of a name", "T", {plain, field("n", FieldType::Text)}, 3191},
        {"too wide", "T", {field("A", FieldType::Text, 256)}, 3273},
        {"a field without a name", "T", {field("", FieldType::Long)}, 3125},
        {"a field with a point", "T", {field("a.b", FieldType::Long)}, 3125},
        {"no name", "", {plain}, 3125},
        {"a bracket", "T]", {plain}, 3125},
        {"a long name", std::string(65, 'x'), {plain}, 3125},
        {"a default of another kind", "T", {Field{"N", FieldType::Long, 0, false, true, "'x'"}}, 3421},
        {"a default that ends the definition",
         "T",
         {Field{"N", FieldType::Long, 0, false, true, "0); DROP TABLE Other; --"}},
         3421},
    };
    database->execute("CREATE TABLE Other (N Long)");
    for (const Case& refused : cases) {
        TableDef definition = database->createTableDef(refused.table);
        definition.fields = refused.fields;
        try {
            database->tableDefs().append(definition);
            ADD_FAILURE() << refused.name;
        } catch (const DatabaseError& error) {
            EXPECT_EQ(error.number(), refused.number) << refused.name << ": " << error.description();
        }
    }
    EXPECT_EQ(database->tableDefs().count(), 1u);
    EXPECT_THROW(database->tableDefs().appendField("Other", field("x", FieldType::Text, 300)), DatabaseError);
}

TEST_F(TableDefinitions, AreCopiedToAnotherFile) {
    TableDef original = database->createTableDef("TblSettings");
    original.fields = {Field{"BoundaryDate", FieldType::Date, 0, true, true, "0"},
                       Field{"Name", FieldType::Text, 20, false, false, "\"none\""}, field("Note", FieldType::Text)};
    database->tableDefs().append(original);
    const auto other = workspace->createDatabase(folder.file("b.mdb"), "MS Access;PWD=b");
    other->tableDefs().append(*database->tableDefs().find("TblSettings"));
    other->execute("INSERT INTO TblSettings (Note) VALUES ('x')");
    const auto row = other->openRecordset("TblSettings");
    EXPECT_EQ(row->value("BoundaryDate"), Value(Date{0}));
    EXPECT_EQ(row->value("Name"), Value("none"));
    EXPECT_EQ(other->tableDefs().find("TblSettings")->findField("Note")->size, 255);
    other->execute("SELECT * INTO Copy FROM TblSettings");
    EXPECT_EQ(other->tableDefs().find("Copy")->fields.size(), 3u);
}

TEST_F(TableDefinitions, SeeTablesThatStatementsMakeAndDrop) {
    TableDefs& tables = database->tableDefs();
    database->execute("CREATE TABLE A (N Long)");
    EXPECT_NE(tables.find("A"), nullptr);
    const auto second = workspace->openDatabase(folder.file("a.mdb"));
    second->execute("DROP TABLE A");
    EXPECT_EQ(tables.find("A"), nullptr);
    tables.refresh();
    EXPECT_EQ(tables.count(), 0u);
    EXPECT_THROW(tables.at(0), DatabaseError);
    database->close();
    EXPECT_THROW(tables.refresh(), DatabaseError);
}

TEST_F(TableDefinitions, FieldsComeAndGoUnderTheRowsThatAreThere) {
    database->execute("CREATE TABLE T (A Text(5), B Long, C Text(5))");
    database->execute("INSERT INTO T VALUES ('a', 1, 'c')");
    database->execute("CREATE INDEX ByC ON T (C)");
    TableDefs& tables = database->tableDefs();
    tables.appendField("T", Field{"Note", FieldType::Text, 9, true, false, "'none'"});
    tables.appendField("T", Field{"Free", FieldType::Memo, 0, false, false, {}});
    tables.appendField("T", field("Ok", FieldType::Boolean));
    tables.removeField("T", "b");
    const auto row = database->openRecordset("T");
    EXPECT_EQ(row->fieldCount(), 5);
    EXPECT_EQ(row->value("Note"), Value("none"));
    EXPECT_EQ(row->value("Ok"), Value(false));
    EXPECT_TRUE(row->value("Free").isNull());
    Field counter = field("Id", FieldType::Long);
    counter.counter = true;
    const std::pair<long, std::function<void()>> refused[] = {
        {3265, [&] { tables.removeField("T", "B"); }},
        {3280, [&] { tables.removeField("T", "C"); }},
        {3078, [&] { tables.removeField("None", "C"); }},
        {3078, [&] { tables.appendField("None", field("C", FieldType::Long)); }},
        {3314,
         [&] {
             tables.appendField("T", Field{"Must", FieldType::Long, 0, true, true, {}});
         }},
        {3259, [&] { tables.appendField("T", counter); }},
        {3125, [&] { tables.appendField("T", field("a]b", FieldType::Long)); }},
        {3315, [&] { database->execute("UPDATE T SET Free = ''"); }},
        {3315, [&] { database->execute("UPDATE T SET Note = ''"); }},
        {3314, [&] { database->execute("UPDATE T SET Note = Null"); }},
    };
    for (const auto& [number, action] : refused) {
        try {
            action();
            ADD_FAILURE() << number << " in line " << &number - &refused[0].first;
        } catch (const DatabaseError& error) {
            EXPECT_EQ(error.number(), number) << error.description();
        }
    }
    EXPECT_EQ(tables.find("T")->fields.size(), 5u);
}

/// What refuses empty texts lies in the type of the column, which other statements carry on.
TEST_F(TableDefinitions, EmptyTextsStayRefusedThroughChangesOfTheTable) {
    TableDef names = database->createTableDef("Names");
    names.fields = {Field{"Name", FieldType::Text, 9, false, false, {}}, field("N", FieldType::Long)};
    database->tableDefs().append(names);
    database->execute("INSERT INTO Names VALUES ('x', 1)");
    database->execute("ALTER TABLE Names ALTER COLUMN N Double");
    database->execute("ALTER TABLE Names ADD COLUMN M Long");
    database->execute("ALTER TABLE Names DROP COLUMN M");
    const auto rows = database->openRecordset("Names");
    rows->Edit();
    rows->set("Name", "");
    EXPECT_THROW(rows->Update(), DatabaseError);
    EXPECT_FALSE(database->tableDefs().find("Names")->findField("Name")->allowZeroLength);
}

TEST_F(TableDefinitions, ACounterNumbersTheRowsAndIsTheOnlyOne) {
    Field id = field("Id", FieldType::Long);
    id.counter = true;
    Field second = id;
    second.name = "Id2";
    TableDef numbered = database->createTableDef("Numbered");
    numbered.fields = {id, second};
    EXPECT_THROW(database->tableDefs().append(numbered), DatabaseError);
    numbered.fields[1] = field("N", FieldType::Long);
    database->tableDefs().append(numbered);
    database->execute("INSERT INTO Numbered (N) VALUES (5)");
    database->execute("INSERT INTO Numbered (N) VALUES (6)");
    EXPECT_EQ(database->openRecordset("SELECT Id FROM Numbered WHERE N = 6")->value(0), Value(2));
    EXPECT_TRUE(database->tableDefs().find("Numbered")->findField("Id")->counter);
}

} // namespace
