#include "data/jet/Search.h"

#include "data/types/DatabaseError.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

const std::vector<std::string> columns{"TVRegion", "Calls", "Cost", "Started", "Active", "1141", "Areas.Code"};

int findColumn(std::string_view name) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (equalText(columns[i], name))
            return static_cast<int>(i);
    }
    return -1;
}

std::vector<Value> londonRow() {
    return {"London ", 10, Money::fromDouble(0.3), dateOf({2025, 1, 31, 8, 0, 0}), true, {}, "x"};
}

bool matches(const std::string& expression) {
    const std::vector<Value> row = londonRow();
    return jet::Search(expression, findColumn).matches([&](int column) -> const Value& {
        return row[static_cast<std::size_t>(column)];
    });
}

struct Fault {
    long number = 0;
    std::optional<std::size_t> position;
};

Fault faultOf(const std::string& expression) {
    try {
        matches(expression);
    } catch (const DatabaseError& error) {
        return {error.number(), error.position()};
    }
    return {};
}

} // namespace

TEST(Search, FindsRowsAsAWhereClauseWould) {
    for (const char* expression : {
             "TVRegion = 'LONDON'",
             "tvregion = \"london  \" And Calls > 3",
             "UCASE(TVRegion) = 'LONDON'",
             "[TVRegion] Like 'L?nd*'",
             "TVRegion In ('Paris', 'LONDON')",
             "Calls Between 20 And 5",
             "Cost = 0.3 And Cost * 10 = 3",
             "Started >= #01/31/2025# And Started - #08:00:00# = #01/31/2025#",
             "Active",
             "Active = True And Not Active = 0",
             "Active = Yes And Not Active = No",
             "TVRegion = 'a' Or TVRegion = 'b' Or TVRegion = 'c' Or TVRegion = 'london'",
             "[1141] Is Null And IsNull([1141])",
             "Nz([1141], 'MOBILE') = 'mobile'",
             "Not ([1141] = 'x') Or Calls = 10",
             "IIf(Calls = 0, CDate('no date'), 1) = 1",
             "Left(TVRegion, 3) & Calls = 'lon10'",
             "Areas.Code = 'X'",
             "Nothing.Calls = 10",
         })
        EXPECT_TRUE(matches(expression)) << expression;
}

TEST(Search, PassesOverRowsWhereTheExpressionIsFalseOrNull) {
    for (const char* expression : {
             "TVRegion = 'Paris'",
             "[1141] = 'x'",
             "Not [1141] = 'x'",
             "[1141] Like '*'",
             "[1141] In ('x')",
             "[1141] Not In ('x')",
             "Calls Not In (1, Null)",
             "Calls Between 1 And Null",
             "Calls / 0 = 1",
             "Null",
             "Active Xor True",
         })
        EXPECT_FALSE(matches(expression)) << expression;
}

TEST(Search, TellsFaultsByNumberAndPosition) {
    const struct {
        const char* expression;
        long number;
        std::optional<std::size_t> position;
    } cases[] = {
        {"TVRegion = 'KING'S LYNN'", 3077, 17}, // a name pasted with its apostrophe
        {"TVRegion = ", 3077, 11},
        {"Calls 3", 3077, 6},
        {"Nothing = 1", 3070, 0},
        {"Calls = Nothing", 3070, 8},
        {"Foo(Calls) = 1", 3085, 0},
        {"Left(TVRegion) = 'x'", 3075, 0},
        {"Count(*) > 1", 3077, 0},
        {"Calls In (SELECT 1)", 3077, 0},
        {"Calls = 'ten'", 3464, 6},
        {"CDate(TVRegion) > 1", 3464, 0},
        {"CLng([1141]) = 1", 94, 0},
    };
    for (const auto& expected : cases) {
        const Fault fault = faultOf(expected.expression);
        EXPECT_EQ(fault.number, expected.number) << expected.expression;
        EXPECT_EQ(fault.position, expected.position) << expected.expression;
    }
}
