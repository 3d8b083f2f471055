#include "data/types/DatabaseError.h"
#include "tests/statements/SampleDatabases.h"
#include "tests/support/ShownValue.h"
#include "tests/support/SqlCases.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

/// The statements of the program, grouped by what they serve, run on a sample installation. Each case is undone.
/// Beside the expectations of SqlCases.h there are
///     -- row count 12             so many rows
///     -- same as SELECT …         the rows of another statement, in the same order
///     -- same set as SELECT …     the same in any order
///     -- count same as SELECT …   it changes as many rows as the first value of a query run before it
///     -- finds London             the first value of the row that FindFirst or FindNext has reached
///     -- finds nothing
/// Lines that are no statements:
///     FindFirst TVRegion = 'London'          search in the rows of the last query; FindNext likewise
///     Attach PGN_GROUPS_Link to PGN_GROUPS of groups
/// {project}, {system}, {groups} and {delivered} stand for the paths of the files.

namespace {

using Rows = std::vector<std::string>;

Rows rowsOf(Recordset& records) {
    Rows lines;
    for (; !records.EOF_(); records.MoveNext()) {
        std::vector<Value> row;
        for (int i = 0; i < records.fieldCount(); ++i)
            row.push_back(records.value(i));
        lines.push_back(shownRow(row));
    }
    if (!lines.empty())
        records.MoveFirst();
    return lines;
}

Rows sorted(Rows rows) {
    std::sort(rows.begin(), rows.end());
    return rows;
}

/// Whether the text begins with the prefix, which is then cut off.
bool takePrefix(std::string& text, std::string_view prefix) {
    if (!text.starts_with(prefix))
        return false;
    text.erase(0, prefix.size());
    return true;
}

class Runner {
public:
    void run(const SqlStep& step) {
        database_ = &databases_.database(step.database.empty() ? "system" : step.database);
        std::string statement = databases_.withPaths(step.statement);
        std::string expected = databases_.withPaths(step.expectation);
        std::optional<Rows> before;
        if (takePrefix(expected, "count same as ")) {
            before = query(expected);
            expected = "count";
        }
        if (takePrefix(statement, "FindFirst "))
            find([&] { records_->FindFirst(statement); }, expected);
        else if (takePrefix(statement, "FindNext "))
            find([&] { records_->FindNext(statement); }, expected);
        else if (takePrefix(statement, "Attach "))
            attach(statement);
        else if (const auto records = database_->run(statement))
            compare(*(records_ = records), expected, step.rows);
        else if (expected.starts_with("count"))
            EXPECT_EQ("count " + std::to_string(database_->recordsAffected()),
                      before ? "count " + before->at(0) : expected);
        else
            EXPECT_EQ(expected, "done") << "the statement ran";
    }

private:
    Rows query(const std::string& statement) { return rowsOf(*database_->openRecordset(statement)); }

    void compare(Recordset& records, std::string expected, const Rows& rows) {
        if (takePrefix(expected, "row count "))
            EXPECT_EQ(std::to_string(records.RecordCount()), expected);
        else if (takePrefix(expected, "same as "))
            EXPECT_EQ(rowsOf(records), query(expected));
        else if (takePrefix(expected, "same set as "))
            EXPECT_EQ(sorted(rowsOf(records)), sorted(query(expected)));
        else if (expected == "any order")
            EXPECT_EQ(sorted(rowsOf(records)), sorted(rows));
        else if (expected == "rows")
            EXPECT_EQ(rowsOf(records), rows);
        else
            FAIL() << "a query does not give: " << expected;
    }

    template<typename Search>
    void find(const Search& search, const std::string& expected) {
        search();
        EXPECT_EQ(records_->NoMatch() ? "finds nothing" : "finds " + shownValue(records_->value(0)), expected);
    }

    /// "link to table of database"
    void attach(const std::string& text) {
        std::istringstream words(text);
        std::string link, to, table, of, from;
        words >> link >> to >> table >> of >> from;
        databases_.attach(*database_, link, table, from);
    }

    SampleDatabases& databases_ = SampleDatabases::shared();
    Database* database_ = nullptr;
    std::shared_ptr<Recordset> records_;
};

void checkError(const SqlStep& step, const DatabaseError& error) {
    std::string got = "error " + std::to_string(error.number());
    if (step.expectation.find(" at ") != std::string::npos)
        got += error.position() ? " at " + std::to_string(*error.position()) : " at nowhere";
    EXPECT_EQ(got, step.expectation) << error.description();
}

class Statements : public testing::TestWithParam<SqlCase> {};

TEST_P(Statements, hold) {
    Runner runner;
    const WorkspaceTransaction undone(*defaultWorkspace());
    for (const SqlStep& step : GetParam().steps) {
        SCOPED_TRACE(step.statement);
        try {
            runner.run(step);
        } catch (const DatabaseError& error) {
            checkError(step, error);
        }
    }
}

std::string testName(const testing::TestParamInfo<SqlCase>& info) {
    return sqlCaseTestName(info.param, info.index);
}

INSTANTIATE_TEST_SUITE_P(Text, Statements, testing::ValuesIn(readSqlCases(CALLSCOPE_STATEMENTS)), testName);

} // namespace
