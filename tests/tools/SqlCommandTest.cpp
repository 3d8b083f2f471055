#include "tests/support/TemporaryFolder.h"
#include "tests/tools/ToolProcess.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace {

class SqlCommand : public testing::Test {
protected:
    ToolRun sql(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"sql", "--db", file});
        return runTool(arguments);
    }

    TemporaryFolder folder;
    std::string file = folder.file("a.mdb");
};

TEST_F(SqlCommand, MakesAFileAndShowsItsRowsInBothForms) {
    ASSERT_EQ(
        sql({"--create", "CREATE TABLE T (Name Text(20), N Long, Day DateTime, Yes YesNo)",
             "INSERT INTO T VALUES ('a,b', 1, #3/31/2025#, True)", "INSERT INTO T VALUES ('', NULL, #8:05:00#, False)"})
            .status,
        0);
    EXPECT_EQ(sql({"--csv", "SELECT * FROM T ORDER BY Name DESC"}).output,
              "Name,N,Day,Yes\n\"a,b\",1,2025-03-31,-1\n\"\",,08:05:00,0\n");
    EXPECT_EQ(sql({"SELECT * FROM T ORDER BY Name"}).output,
              "Name\tN\tDay\tYes\n\t\\N\t08:05:00\t0\na,b\t1\t2025-03-31\t-1\n");
}

TEST_F(SqlCommand, StopsAtTheFirstFaultAndSaysWhere) {
    const ToolRun run = sql({"--create", "CREATE TABLE T (N Long)", "SELECT N FROM T WHERE N = = 3", "DROP TABLE T"});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.errors.starts_with("error 3075 at 27: ")) << run.errors;
    EXPECT_EQ(sql({"SELECT N FROM T"}).status, 0) << "the statement behind the fault must not run";
    EXPECT_TRUE(sql({"SELECT * FROM Nowhere"}).errors.starts_with("error 3078 at ")) << "an unknown table";
}

TEST_F(SqlCommand, KeepsAPasswordAndNamesTheFileThatItCannotOpen) {
    ASSERT_EQ(sql({"--create", "--password", "secret", "CREATE TABLE T (N Long)"}).status, 0);
    EXPECT_EQ(sql({"--password", "secret", "SELECT * FROM T"}).output, "N\n");
    const std::string before = fileContents(file);
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"SELECT 1"},
                                                      {"--password", "wrong", "SELECT 1"},
                                                      {"--create", "--password", "wrong", "SELECT 1"}}) {
        const ToolRun run = sql(arguments);
        EXPECT_EQ(run.status, 1);
        EXPECT_NE(run.errors.find(file), std::string::npos) << run.errors;
        EXPECT_EQ(std::count(run.errors.begin(), run.errors.end(), '\n'), 1) << run.errors;
    }
    EXPECT_EQ(fileContents(file), before);
    const ToolRun missing = runTool({"sql", "--db", folder.file("none.mdb"), "SELECT 1"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_FALSE(std::filesystem::exists(folder.file("none.mdb")));
}

TEST_F(SqlCommand, WrongArgumentsHaveAStatusOfTheirOwn) {
    EXPECT_EQ(runTool({}).status, 2);
    EXPECT_EQ(runTool({"sql", "SELECT 1"}).status, 2);
    EXPECT_EQ(runTool({"sql", "--db", file, "--csv", "--tsv", "SELECT 1"}).status, 2);
    EXPECT_EQ(runTool({"paint"}).status, 2);
    EXPECT_EQ(runTool({"--help"}).status, 0);
}

} // namespace
