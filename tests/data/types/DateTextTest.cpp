#include "core/RuntimeError.h"
#include "data/types/Value.h"

#include <gtest/gtest.h>

namespace {

struct Reading {
    const char* text;
    bool monthFirst;
    const char* shown; ///< as `&` writes the date; null where the text is no date
};

TEST(DateText, ReadsTheFormsThatStatementsAndPeopleWrite) {
    const Reading readings[] = {
        {"31/12/2025", false, "31/12/2025"},
        {"03/04/2025", false, "03/04/2025"},
        {"03/04/2025", true, "04/03/2025"},
        {"31/12/2025", true, "31/12/2025"}, // there is no month 31
        {"12/31/2025", false, "31/12/2025"},
        {"2025-12-31 17:05:09", false, "31/12/2025 17:05:09"},
        {"5 Jan 2025", false, "05/01/2025"},
        {"01/Jan/1800", false, "01/01/1800"},
        {"1/2/99", false, "01/02/1999"},
        {"1/2/26", false, "01/02/2026"},
        {"08:00", false, "08:00:00"},
        {"11:59:59 PM", false, "23:59:59"},
        {"12:00 AM", false, "00:00:00"},
        {"31/02/2025", false, nullptr},
        {"24:00", false, nullptr},
        {"10:60", false, nullptr},
        {"1/2", false, nullptr},
        {"1/2/2025 8", false, nullptr},
        {"1:2/3/2025", false, nullptr},
        {"99999999999/1/1", false, nullptr},
        {"MOBILE", false, nullptr},
        {"", false, nullptr},
    };
    for (const Reading& reading : readings) {
        if (reading.shown)
            EXPECT_EQ(Value(parseDate(reading.text, reading.monthFirst)).asText(), reading.shown) << reading.text;
        else
            EXPECT_THROW(parseDate(reading.text, reading.monthFirst), RuntimeError) << reading.text;
    }
}

TEST(DateText, PartsSurviveTheWayToDaysAndBack) {
    for (const DateParts& parts : {DateParts{2025, 2, 28, 23, 59, 59}, DateParts{1800, 1, 1, 13, 5, 7},
                                   DateParts{1899, 12, 30, 0, 0, 1}, DateParts{2400, 2, 29, 12, 0, 0}}) {
        const DateParts back = partsOf(dateOf(parts));
        EXPECT_EQ(std::tie(back.year, back.month, back.day, back.hour, back.minute, back.second),
                  std::tie(parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second));
    }
    EXPECT_EQ(dateOf({2025, 14, 31, 0, 0, 0}), dateOf({2026, 3, 3, 0, 0, 0})) << "months and days carry over";
}

} // namespace
