#include "data/jet/Search.h"
#include "tests/data/jet/JetFixture.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

constexpr int minutesOfDay = 1440;

std::string timeText(int minute, int second) {
    char text[40];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", minute / 60, minute % 60, second);
    return text;
}

const std::string timeOfCall = "CDate(Left(CallTime,2) & ':' & Mid(CallTime, 4,2))";

} // namespace

/// The seconds of a call do not count, and a literal meets its own minute exactly, in statements and in searches.
TEST(TimeOfDay, EveryMinuteMeetsItsLiteral) {
    JetFixture database;
    database.run("CREATE TABLE Times (Minute Long, CallTime Text(8))");
    database.executePlain("BEGIN");
    for (int minute = 0; minute < minutesOfDay; ++minute)
        database.run("INSERT INTO Times VALUES (" + std::to_string(minute) + ", '" + timeText(minute, minute % 60) +
                     "')");
    database.executePlain("COMMIT");
    const auto rows = database.run("SELECT * FROM Times").rows;
    for (int minute = 0; minute < minutesOfDay; ++minute) {
        const std::string literal = "#" + timeText(minute, 0) + "#";
        const auto counts =
            database.run("SELECT Sum(IIf(" + timeOfCall + " >= " + literal + ", 1, 0)) AS late, Sum(IIf(" + timeOfCall +
                         " <= " + literal + ", 1, 0)) AS early, Sum(IIf(" + timeOfCall + " = " + literal +
                         ", Minute, 0)) AS same FROM Times");
        ASSERT_EQ(counts.rows.front()[0].asInteger(), minutesOfDay - minute) << literal;
        ASSERT_EQ(counts.rows.front()[1].asInteger(), minute + 1) << literal;
        ASSERT_EQ(counts.rows.front()[2].asInteger(), minute) << literal;
        if (minute % 7 != 0)
            continue;
        const jet::Search search(timeOfCall + " = " + literal,
                                 [](std::string_view name) { return name == "CallTime" ? 1 : -1; });
        for (int row = 0; row < minutesOfDay; ++row) {
            const auto& cells = rows[static_cast<std::size_t>(row)];
            ASSERT_EQ(
                search.matches([&](int column) -> const Value& { return cells[static_cast<std::size_t>(column)]; }),
                row == minute)
                << literal;
        }
    }
}

TEST(TimeOfDay, DatesWithATimeMeetTheirLiteralToTheSecond) {
    JetFixture database;
    for (int minute = 1; minute < minutesOfDay; minute += 61) {
        const std::string time = timeText(minute, minute % 60);
        const auto row = database.run("SELECT (#3/28/2026 " + time + "# = #3/28/2026# + #" + time +
                                      "#) AS a, (DateValue('28/03/2026') + TimeValue('" + time + "') = #3/28/2026 " +
                                      time + "#) AS b, Format(#3/28/2026 " + time + "#, 'hh:nn:ss') AS c");
        EXPECT_EQ(row.rows.front()[0], Value(true)) << time;
        EXPECT_EQ(row.rows.front()[1], Value(true)) << time;
        EXPECT_EQ(row.rows.front()[2], Value(time));
    }
}
