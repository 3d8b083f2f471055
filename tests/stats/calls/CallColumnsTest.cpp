#include "stats/calls/CallColumns.h"

#include "core/ModDeclarations.h"
#include "data/sqlite/Connection.h"
#include "data/types/DatabaseError.h"
#include "stats/calls/BuildCallColumns.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

namespace {

const CallProgress goOn = [] { return true; };

void insertCall(const std::string& values) {
    gdbProject->connection().execute("INSERT INTO " + gdbProject->schema() +
                                     ".TblTeleItem(CallDate, CallTime, CalledNo, CallingNo, \"1141\", AnswerInd, "
                                     "Discounted) VALUES(" +
                                     values + ")");
}

/// The calls of each caller as "code/AnswerInd", with an "!" where the caller was answered at any time.
std::vector<std::string> callers(const CallColumns& columns) {
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if ((columns.callerFlags[i] & CallColumns::firstOfCaller) != 0)
            lines.emplace_back((columns.callerFlags[i] & CallColumns::callerWasAnswered) != 0 ? "!" : "");
        lines.back() += " " + columns.valuesOf(CallField::Code)[columns.idsOf(CallField::Code)[i]].asText() + "/" +
                        columns.valuesOf(CallField::AnswerInd)[columns.answerInd[i]].asText();
    }
    return lines;
}

TEST(CallColumns, PutTheCallsOfEachCallerSideBySide) {
    const SmallInstallation installation;
    insertCall("1, '09:00', 'x', '0123', '01', '4', 0");
    insertCall("1, '09:00', 'x', NULL, '02', '0', 0");
    insertCall("1, '09:00', 'x', 'Withheld', '03', '4', 0");
    insertCall("1, '09:00', 'x', '0123  ', '04', '8 ', 0"); // trailing blanks do not count
    insertCall("1, '09:00', 'x', '123', '05', '4', 0");     // but leading zeros do
    insertCall("1, '09:00', 'x', 'WITHHELD ', '06', NULL, 0");
    insertCall("1, '09:00', 'x', '', '07', '4', 0");
    insertCall("1, '09:00', 'x', NULL, '08', '4', 0");
    const auto columns = buildCallColumns(*gdbProject, goOn);
    ASSERT_TRUE(columns);
    EXPECT_EQ(callers(*columns),
              (std::vector<std::string>{"! 01/4 04/8 ", " 02/0 08/4", " 03/4 06/", " 05/4", " 07/4"}));
    EXPECT_EQ(columns->callers, 5u);
}

TEST(CallColumns, KeepOfATimeWhatMakesHoursAndMinutes) {
    const SmallInstallation installation;
    const std::pair<const char*, const char*> times[] = {
        {"'09:05:59'", "09:05"}, {"'09.05'", "09:05"}, {"'9:5'", "9::"}, {"'9'", "9"}, {"''", ""},
        {"'Ä9x05'", "Ä9:05"}};
    for (const auto& [stored, kept] : times) {
        gdbProject->execute("DELETE FROM TblTeleItem");
        insertCall(std::string("1, ") + stored + ", 'x', '1', '01', '4', 0");
        const auto columns = buildCallColumns(*gdbProject, goOn);
        EXPECT_EQ(columns->valuesOf(CallField::Time).at(0).asText(), kept);
    }
}

TEST(CallColumns, RefuseWhatFiguresCannotBeMadeOf) {
    const SmallInstallation installation;
    const std::pair<const char*, const char*> rows[] = {
        {"'soon', '09:00', 'x', '1', '01', '4', 0", "CallDate"},
        {"1, '09:00', x'00', '1', '01', '4', 0", "CalledNo"},
        {"1, '09:00', 'x', '1', '01', '4', 0.00001", "Discounted"},
        {"1, '09:00', 'x', '1', '01', '4', 1e9", "Discounted"},
        {"1, '09:00', 'x', '1', '01', '4', 'much'", "Discounted"},
    };
    for (const auto& [row, column] : rows) {
        gdbProject->execute("DELETE FROM TblTeleItem");
        insertCall(row);
        try {
            buildCallColumns(*gdbProject, goOn);
            ADD_FAILURE() << row;
        } catch (const DatabaseError& error) {
            EXPECT_NE(error.description().find(column), std::string::npos) << error.description();
            EXPECT_NE(error.description().find("TblTeleItem"), std::string::npos) << error.description();
        }
    }
    gdbProject->execute("DELETE FROM TblTeleItem");
    gdbProject->execute("ALTER TABLE TblTeleItem DROP COLUMN NetAddress");
    EXPECT_THROW(buildCallColumns(*gdbProject, goOn), DatabaseError);
}

TEST(CallColumns, TellHowFarTheirBuildingHasCome) {
    const SmallInstallation installation;
    for (int call = 0; call < 20; ++call)
        insertCall("1, '09:00', 'x', '" + std::to_string(call % 7) + "', '01', '4', 0");
    std::vector<double> shares;
    ASSERT_TRUE(buildCallColumns(*gdbProject, goOn, [&](double share) { shares.push_back(share); }));
    ASSERT_GE(shares.size(), 3U);
    EXPECT_TRUE(std::is_sorted(shares.begin(), shares.end()));
    EXPECT_GE(shares.front(), 0);
    EXPECT_LE(shares.back(), 1);
    EXPECT_GT(shares.back(), 0.7);
}

TEST(CallColumns, StopWhenAskedTo) {
    const SmallInstallation installation;
    insertCall("1, '09:00', 'x', '1', '01', '4', 0");
    EXPECT_FALSE(buildCallColumns(*gdbProject, [] { return false; }));
    // More values than ids: the thread that encodes reports the column.
    gdbProject->connection().execute("INSERT INTO " + gdbProject->schema() +
                                     ".TblTeleItem(AnswerInd) WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 "
                                     "FROM n LIMIT 300000) SELECT printf('%d', i % 300) FROM n");
    EXPECT_THROW(buildCallColumns(*gdbProject, goOn), DatabaseError);
}

} // namespace
