#include "tests/support/SqlCases.h"
#include "data/types/DatabaseError.h"
#include "tests/data/jet/JetFixture.h"
#include "tests/support/ShownValue.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

const std::string folder = CALLSCOPE_SQL_CASES;

std::vector<std::string> shownRows(const JetFixture::Result& result) {
    std::vector<std::string> lines;
    for (const auto& row : result.rows)
        lines.push_back(shownRow(row));
    return lines;
}

std::string shownColumns(const JetFixture::Result& result) {
    static const std::vector<std::string> names{"Boolean", "Byte", "Integer", "Long", "Currency",  "Single",
                                                "Double",  "Date", "Text",    "Memo", "LongBinary"};
    std::string text;
    for (const jet::ResultColumn& column : result.columns) {
        text += (text.empty() ? "" : ", ") + column.name + " ";
        text += column.type ? names[static_cast<std::size_t>(*column.type)] : "?";
        if (column.size > 0)
            text += "(" + std::to_string(column.size) + ")";
    }
    return text;
}

void checkResult(const SqlStep& step, const JetFixture::Result& result) {
    if (!step.columns.empty()) {
        EXPECT_EQ(shownColumns(result), step.columns);
    }
    if (!step.emits.empty()) {
        EXPECT_EQ(result.program.isQuery ? result.program.query : result.program.steps.back().sql, step.emits);
    }
    if (step.expectation == "rows" || step.expectation == "any order") {
        std::vector<std::string> rows = shownRows(result);
        std::vector<std::string> expected = step.rows;
        if (step.expectation == "any order") {
            std::sort(rows.begin(), rows.end());
            std::sort(expected.begin(), expected.end());
        }
        EXPECT_EQ(rows, expected) << result.program.query;
    } else if (step.expectation.starts_with("count ")) {
        EXPECT_EQ("count " + std::to_string(result.affected), step.expectation) << result.program.steps.back().sql;
    } else {
        EXPECT_EQ(step.expectation, "done") << "the statement ran";
    }
}

void checkError(const SqlStep& step, const DatabaseError& error) {
    std::string got = "error " + std::to_string(error.number());
    if (step.expectation.find(" at ") != std::string::npos)
        got += error.position() ? " at " + std::to_string(*error.position()) : " at nowhere";
    EXPECT_EQ(got, step.expectation) << error.description();
}

/// The query that also shows row numbers must show the same rows.
void checkRowids(JetFixture& database, const JetFixture::Result& result) {
    if (!result.program.updatable)
        return;
    std::vector<jet::ResultColumn> columns = result.columns;
    columns.insert(columns.begin(), jet::ResultColumn{"row", FieldType::Long, 0, {}});
    std::vector<std::vector<Value>> rows = database.queryPlain(result.program.rowidQuery, columns);
    for (auto& row : rows) {
        EXPECT_FALSE(row.front().isNull()) << result.program.rowidQuery;
        row.erase(row.begin());
    }
    EXPECT_EQ(rows, result.rows) << result.program.rowidQuery;
}

class SqlCases : public testing::TestWithParam<SqlCase> {};

TEST_P(SqlCases, holds) {
    JetFixture database;
    database.runFile(folder + "/fixture.sql");
    database.addLink("Areas_Link", "Areas");
    database.addLink("Lost_Link", "");
    for (const SqlStep& step : GetParam().steps) {
        SCOPED_TRACE(step.statement);
        try {
            const JetFixture::Result result = database.run(step.statement);
            checkResult(step, result);
            checkRowids(database, result);
        } catch (const DatabaseError& error) {
            checkError(step, error);
        }
    }
}

std::string testName(const testing::TestParamInfo<SqlCase>& info) {
    return sqlCaseTestName(info.param, info.index);
}

INSTANTIATE_TEST_SUITE_P(Text, SqlCases, testing::ValuesIn(readSqlCases(folder)), testName);

} // namespace
