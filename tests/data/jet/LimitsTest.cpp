#include "data/types/DatabaseError.h"
#include "tests/data/jet/JetFixture.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

std::string repeated(const std::string& piece, int times) {
    std::string text;
    for (int i = 0; i < times; ++i)
        text += piece;
    return text;
}

std::string listed(int count, const std::function<std::string(int)>& item, const std::string& between) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += (i == 0 ? "" : between) + item(i);
    return text;
}

class Limits : public testing::Test {
protected:
    void SetUp() override {
        database.run("CREATE TABLE T (A Text(20), N Long)");
        database.run("INSERT INTO T VALUES ('x7', 7)");
        database.run("INSERT INTO T VALUES ('y', 8)");
    }
    /// The value of a statement that shows one.
    Value valueOf(const std::string& statement) { return database.run(statement).rows.at(0).at(0); }
    long faultOf(const std::string& statement) {
        try {
            database.run(statement);
            return 0;
        } catch (const DatabaseError& error) {
            return error.number();
        }
    }

    JetFixture database;
};

} // namespace

/// A community group has up to 1,500 numbers; nobody stops an analyst from pasting more.
TEST_F(Limits, LongChainsAndListsAreAnswered) {
    const auto test = [](int i) { return "A = 'x" + std::to_string(i) + "'"; };
    const auto number = [](int i) { return std::to_string(i); };
    EXPECT_EQ(valueOf("SELECT Count(*) FROM T WHERE " + listed(20000, test, " OR ")), Value(1));
    EXPECT_EQ(valueOf("SELECT Count(*) FROM T WHERE (" + listed(20000, test, ") OR (") + ")"), Value(1));
    EXPECT_EQ(valueOf("SELECT Count(*) FROM T WHERE Not (" + listed(3000, test, " OR ") + ") AND " +
                      listed(
                          3000, [](int i) { return "N <> " + std::to_string(i + 100); }, " AND ")),
              Value(1));
    EXPECT_EQ(valueOf("SELECT Count(*) FROM T WHERE N In (" + listed(20000, number, ", ") + ")"), Value(2));
    EXPECT_EQ(valueOf("SELECT Len('" + repeated("é", 1000000) + "')"), Value(1000000));
    EXPECT_EQ(valueOf("SELECT " + repeated("(", 100) + "N" + repeated(")", 100) + " FROM T WHERE N = 7"), Value(7));
    EXPECT_EQ(valueOf("SELECT Count(*) FROM (" +
                      listed(
                          40, [](int) { return "SELECT A FROM T"; }, " UNION ") +
                      ") AS u"),
              Value(2));
    EXPECT_EQ(database
                  .run("SELECT TOP 1 " +
                       listed(
                           250, [](int i) { return "N AS c" + std::to_string(i); }, ", ") +
                       " FROM T ORDER BY N")
                  .columns.size(),
              250u);
}

TEST_F(Limits, WhatGoesTooDeepIsAnError) {
    const auto deep = {
        repeated("(", 100000) + "1" + repeated(")", 100000),
        repeated("IIf(1, ", 5000) + "1" + repeated(", 2)", 5000),
        listed(
            5000, [](int) { return "1"; }, " + "),
        listed(
            5000, [](int) { return "'x'"; }, " & "),
        listed(
            5000, [](int) { return "1"; }, " ^ "),
        listed(
            5000, [](int) { return "N"; }, " Xor "),
        "1 In " + repeated("(SELECT N FROM T WHERE N In ", 5000) + "(1)" + repeated(")", 5000),
    };
    for (const std::string& expression : deep)
        EXPECT_EQ(faultOf("SELECT " + expression + " AS x FROM T"), 3360) << expression.substr(0, 40);
    EXPECT_EQ(faultOf("SELECT * FROM " + repeated("(SELECT * FROM ", 5000) + "T" + repeated(")", 5000)), 3360);
    EXPECT_EQ(faultOf("SELECT Count(*) FROM " + repeated("(", 5000) + "T AS a" +
                      repeated(" INNER JOIN T AS b ON a.N = b.N)", 5000)),
              3360);
    EXPECT_EQ(faultOf(listed(
                  5000, [](int) { return "SELECT A FROM T"; }, " UNION ALL ")),
              3360);
    EXPECT_EQ(valueOf("SELECT " + repeated("Not ", 20000) + "True"), Value(true));
    EXPECT_EQ(valueOf("SELECT " + repeated("- ", 20000) + "1"), Value(1));
}

/// A pattern of many stars must not try every way to divide the text among them.
TEST_F(Limits, PatternsWithManyStarsEnd) {
    const std::string text = repeated("a", 10000);
    for (const char* piece : {"*a", "*[a-c]", "*?", "*a?"}) {
        const std::string pattern = repeated(piece, 60);
        EXPECT_EQ(valueOf("SELECT '" + text + "' Like '" + pattern + "*b'"), Value(false)) << piece;
        EXPECT_EQ(valueOf("SELECT '" + text + "' Like '" + pattern + "*'"), Value(true)) << piece;
    }
}

TEST_F(Limits, FunctionsMakeNoEndlessTexts) {
    for (const char* call :
         {"String(2000000000, 'x')", "Space(2000000000)", "Space(-1)", "String(-1, 'x')", "Round(1, -1)", "Chr(-5)"})
        EXPECT_EQ(faultOf(std::string("SELECT ") + call + " AS x"), 5) << call;
    EXPECT_EQ(faultOf("SELECT Replace(Replace(String(50000, 'x'), 'x', String(50000, 'y')), 'y', 'zz') AS x"), 14);
}
