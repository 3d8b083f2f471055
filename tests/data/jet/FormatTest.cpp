#include "data/jet/Format.h"
#include "data/jet/ScalarFunctions.h"

#include "core/RuntimeError.h"

#include <gtest/gtest.h>

namespace {

const Date moment = dateOf({2025, 2, 1, 17, 5, 9});

Value call(const char* function, std::vector<Value> arguments) {
    return jet::findFunction(function)->apply(arguments);
}

} // namespace

TEST(Format, WritesNumbersByPicture) {
    const struct {
        double number;
        const char* picture;
        const char* text;
    } cases[] = {
        {1234567.891, "£#,###,##0.000", "£1,234,567.891"},
        {0, "£#,###,##0.000", "£0.000"},
        {-12.5, "£#,##0.00", "-£12.50"},
        {0.005, "0.00", "0.01"}, // halves go away from zero
        {1.005, "0.00", "1.01"}, // as its decimal text shows it
        {999.995, "#,##0.00", "1,000.00"},
        {-0.001, "0.00", "0.00"}, // no minus before nothing
        {5, "0.##", "5."},
        {5.5, "0.0#", "5.5"},
        {0.5, "#.00", ".50"},
        {12, "0000", "0012"},
        {1234, "00-00-00", "00-12-34"},
        {1234567, "#,##0,", "1,235"},
        {0.256, "0.0%", "25.6%"},
        {12345.678, "0.00E+00", "1.23E+04"},
        {0.00012, "0.0E-0", "1.2E-4"},
        {9.999, "0.0E+0", "1.0E+1"},
        {-3, "0;(0);zero", "(3)"},
        {0, "0;(0);\"nil\"", "nil"},
        {3, "\\#0", "#3"},
        {1e20, "#,##0", "100,000,000,000,000,000,000"},
        {1234.5, "Currency", "£1,234.50"},
        {1234.5, "fixed", "1234.50"},
        {1234.5, "Standard", "1,234.50"},
        {0.125, "Percent", "12.50%"},
        {1234.5, "General Number", "1234.5"},
        {1, "Yes/No", "Yes"},
        {0, "On/Off", "Off"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(jet::formatValue(Value(row.number), row.picture), row.text) << row.number << " " << row.picture;
}

TEST(Format, WritesDatesByPicture) {
    const struct {
        const char* picture;
        const char* text;
    } cases[] = {
        {"dd/mmm/yyyy", "01/Feb/2025"},
        {"hh:nn:ss", "17:05:09"},
        {"d/m/yy", "1/2/25"},
        {"dddd d mmmm", "Saturday 1 February"},
        {"h:mm", "17:05"},
        {"mm/yyyy", "02/2025"},
        {"hh:nn AM/PM", "05:05 PM"},
        {"h a/p", "5 p"},
        {"q", "1"},
        {"y", "32"},
        {"\"on\" dd", "on 01"},
        {"\\d d", "d 1"},
        {"Short Date", "01/02/2025"},
        {"Long Time", "17:05:09"},
        {"Medium Date", "01-Feb-25"},
        {"General Date", "01/02/2025 17:05:09"},
        {"c", "01/02/2025 17:05:09"},
        {"", "01/02/2025 17:05:09"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(jet::formatValue(Value(moment), row.picture), row.text) << row.picture;
}

TEST(Format, TakesTextForWhatItReadsAs) {
    EXPECT_EQ(jet::formatValue("1234.5", "#,##0.0"), "1,234.5");
    EXPECT_EQ(jet::formatValue("31/12/2025", "yyyy-mm-dd"), "2025-12-31");
    EXPECT_EQ(jet::formatValue("London", "#,##0.0"), "London");
    EXPECT_EQ(jet::formatValue("London", "dd/mm/yyyy"), "London");
    EXPECT_EQ(jet::formatValue("abc", ">"), "ABC");
    EXPECT_EQ(jet::formatValue("ab", "@@@-@"), "  a-b");
    EXPECT_EQ(jet::formatValue("é", "&&-"), "é-");
    EXPECT_EQ(jet::formatValue(Value(), "0"), "");
}

TEST(DateFunctions, StepAndCountByInterval) {
    const struct {
        const char* interval;
        int count;
        Date from;
        Date to;
    } steps[] = {
        {"yyyy", 1, dateOf({2024, 2, 29}), dateOf({2025, 2, 28})},
        {"q", 1, dateOf({2024, 11, 30}), dateOf({2025, 2, 28})},
        {"m", -1, dateOf({2025, 3, 31}), dateOf({2025, 2, 28})},
        {"ww", 2, dateOf({2025, 1, 31}), dateOf({2025, 2, 14})},
        {"d", -1, dateOf({1900, 1, 1}), dateOf({1899, 12, 31})},
        {"h", -18, moment, dateOf({2025, 1, 31, 23, 5, 9})},
        {"n", 60, moment, dateOf({2025, 2, 1, 18, 5, 9})},
        {"s", -10, moment, dateOf({2025, 2, 1, 17, 4, 59})},
        {"h", -1, dateOf({1899, 12, 29, 0, 30, 0}), dateOf({1899, 12, 28, 23, 30, 0})},
    };
    for (const auto& step : steps) {
        EXPECT_EQ(call("DATEADD", {step.interval, step.count, step.from}), Value(step.to))
            << step.interval << " " << step.count;
        if (std::string_view(step.interval) != "q") {
            EXPECT_EQ(call("DATEDIFF", {step.interval, step.from, step.to}), Value(step.count)) << step.interval;
        }
    }
    EXPECT_EQ(call("DATEDIFF", {"yyyy", dateOf({2024, 12, 31}), dateOf({2025, 1, 1})}), Value(1));
    EXPECT_EQ(call("DATEDIFF", {"w", dateOf({2025, 1, 1}), dateOf({2025, 1, 14})}), Value(1));
    EXPECT_EQ(call("DATEPART", {"ww", dateOf({2025, 1, 5})}), Value(2)); // a Sunday begins the second week
    EXPECT_EQ(call("WEEKDAY", {dateOf({2025, 2, 1}), 2}), Value(6));
    EXPECT_THROW(call("DATEADD", {"x", 1, moment}), RuntimeError);
    EXPECT_THROW(call("DATEADD", {"yyyy", 8000, moment}), RuntimeError);
    EXPECT_THROW(call("YEAR", {1e12}), RuntimeError);
}

TEST(Functions, RefuseArgumentsOutsideTheirRange) {
    const struct {
        const char* function;
        std::vector<Value> arguments;
        long error;
    } cases[] = {
        {"LEFT", {"abc", -1}, 5},
        {"MID", {"abc", 0}, 5},
        {"SPACE", {1e9}, 5},
        {"STRING", {2, ""}, 5},
        {"CHR", {0}, 5},
        {"SQR", {-1}, 5},
        {"LOG", {0}, 5},
        {"EXP", {1000}, 6},
        {"ROUND", {1.5, -1}, 5},
        {"CINT", {40000}, 6},
        {"CBYTE", {-1}, 6},
        {"CLNG", {"x"}, 13},
        {"CDATE", {"31/02/2025"}, 13},
        {"CSTR", {Value()}, 94},
        {"DATESERIAL", {12345, 1, 1}, 5},
        {"TIMESERIAL", {1e9, 0, 0}, 6},
        {"MONTHNAME", {13}, 5},
        {"ASC", {""}, 5},
    };
    for (const auto& row : cases) {
        try {
            call(row.function, row.arguments);
            ADD_FAILURE() << row.function << " took its arguments";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), row.error) << row.function;
        }
    }
}
