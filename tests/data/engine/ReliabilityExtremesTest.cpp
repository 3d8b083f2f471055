#include "data/types/DatabaseError.h"
#include "tests/data/engine/ReliabilityScene.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

/// A0, A0+A0 AS A1, A1+A1 AS A2 … in this or in the reverse order.
std::string namesOfNames(int count, const std::string& term, bool backward) {
    std::string list;
    for (int i = 1; i < count; ++i) {
        const std::string other = "A" + std::to_string(backward ? i + 1 : i - 1);
        list += (list.empty() ? "" : ", ") + other + term + other + " AS A" + std::to_string(i);
    }
    const std::string end = "Legs AS A" + std::to_string(backward ? count : 0);
    return "SELECT " + (backward ? list + ", " + end : end + ", " + list) + " FROM Calls";
}

} // namespace

/// Each would take all memory, all of the stack, or hours, were it not bounded.
TEST(Extremes, AStatementThatAsksForTooMuchIsAnError) {
    const TemporaryFolder folder;
    const std::string path = folder.file("calls.mdb");
    makeCallsFile(path, {}, 1);
    const auto database = openAlone(path, {});
    const std::string million = "String(1000000,'x')";
    struct Case {
        const char* name;
        long number;
        std::string statement;
    };
    for (const Case& extreme : {
             Case{"a text of gigabytes", 5, "SELECT String(2000000000,'x') FROM Calls"},
             {"blanks of gigabytes", 5, "SELECT Space(1e9) FROM Calls"},
             {"a replacement that explodes", 14, "SELECT Replace(" + million + ", 'x', " + million + ") FROM Calls"},
             {"texts joined", 14, "SELECT " + million + repeated(" & " + million, 100) + " FROM Calls"},
             {"texts joined in derived tables", 14,
              "SELECT " + repeated("Y & ", 9) + "Y FROM (SELECT " + repeated("X & ", 9) + "X AS Y FROM (SELECT " +
                  million + " AS X FROM Calls))"},
             {"a pattern that nearly fits everywhere", 3360,
              "SELECT " + million + " Like ('*' & String(500000,'x') & '?y*') FROM Calls"},
             {"the same without wildcards inside", 3360,
              "SELECT " + million + " Like ('*' & String(500000,'x') & 'y*') FROM Calls"},
             {"brackets", 3360, "SELECT " + std::string(100000, '(') + "1" + std::string(100000, ')')},
             {"a long sum", 3360, "SELECT 1" + repeated("+1", 100000)},
             {"Between in Between", 3360,
              "SELECT " + repeated("(Legs Between ", 100) + "Legs" + repeated(" And 3)", 100) + " FROM Calls"},
             {"names that double", 3360, namesOfNames(40, "+", false)},
             {"names that double, backward", 3360, namesOfNames(40, "+", true)},
             {"a long chain of names, backward", 3360, namesOfNames(50000, "+0*", true)},
         }) {
        SCOPED_TRACE(extreme.name);
        try {
            database->run(extreme.statement);
            ADD_FAILURE() << "it ran";
        } catch (const DatabaseError& error) {
            EXPECT_EQ(error.number(), extreme.number) << error.description();
        }
    }
    EXPECT_EQ(
        database->openRecordset("SELECT * FROM Calls WHERE Legs IN (" + repeated("0,", 100000) + "1)")->RecordCount(),
        1);
}
