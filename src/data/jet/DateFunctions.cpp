#include "core/RuntimeError.h"
#include "data/jet/DateNames.h"
#include "data/jet/FunctionLibrary.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>

namespace jet::functions {

namespace {

[[noreturn]] void invalidArgument() {
    throw RuntimeError(5, "Invalid procedure call or argument");
}

constexpr std::int64_t mostSteps = 10'000'000'000;

Date dateArgument(const Value& value) {
    return checkedDate(value.asDate());
}

bool anyNull(Arguments arguments) {
    return std::any_of(arguments.begin(), arguments.end(), [](const Value& value) { return value.isNull(); });
}

Value part(Arguments a, int DateParts::*member) {
    return a[0].isNull() ? Value() : Value(std::int64_t{partsOf(dateArgument(a[0])).*member});
}

std::int64_t dayNumber(Date date) {
    return static_cast<std::int64_t>(std::floor(date.days + 1e-9));
}

/// 1 for `first` (1 Sunday to 7 Saturday) to 7; day zero was a Saturday.
std::int64_t weekdayOf(Date date, std::int64_t first) {
    const std::int64_t fromSunday = ((dayNumber(date) + 6) % 7 + 7) % 7;
    return (fromSunday - (first - 1) + 7) % 7 + 1;
}

std::int64_t firstWeekday(Arguments a, std::size_t index) {
    if (a.size() <= index)
        return 1;
    const std::int64_t first = a[index].asInteger();
    if (first < 0 || first > 7)
        invalidArgument();
    return first == 0 ? 1 : first;
}

int smallInteger(const Value& value) {
    const std::int64_t number = value.asInteger();
    if (number < -1'000'000 || number > 1'000'000)
        throw RuntimeError(6, "Overflow");
    return static_cast<int>(number);
}

/// Seconds from day zero; time of day counts forward on both sides of it.
std::int64_t seconds(Date date) {
    const DateParts p = partsOf(date);
    DateParts day = p;
    day.hour = day.minute = day.second = 0;
    return static_cast<std::int64_t>(dateOf(day).days) * 86400 + p.hour * 3600 + p.minute * 60 + p.second;
}

Date fromSeconds(std::int64_t total) {
    std::int64_t day = total / 86400;
    std::int64_t second = total % 86400;
    if (second < 0) {
        second += 86400;
        --day;
    }
    const double time = static_cast<double>(second) / 86400.0;
    return checkedDate(Date{day < 0 ? static_cast<double>(day) - time : static_cast<double>(day) + time});
}

/// The same day and time some months on; a day that the month does not have becomes its last.
Date addMonths(Date date, std::int64_t months) {
    DateParts parts = partsOf(date);
    const std::int64_t index = parts.year * 12LL + parts.month - 1 + months;
    if (index < 100 * 12 || index >= 10000 * 12)
        throw RuntimeError(6, "Overflow: the date lies outside the years 100 to 9999");
    parts.year = static_cast<int>(index / 12);
    parts.month = static_cast<int>(index % 12) + 1;
    const std::chrono::year_month_day_last last{
        std::chrono::year{parts.year},
        std::chrono::month_day_last{std::chrono::month{static_cast<unsigned>(parts.month)}}};
    parts.day = std::min(parts.day, static_cast<int>(static_cast<unsigned>(last.day())));
    return dateOf(parts);
}

Date localNow() {
    const std::time_t clock = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &clock);
#else
    localtime_r(&clock, &local);
#endif
    return dateOf({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                   std::min(local.tm_sec, 59)});
}

std::int64_t monthsOf(const DateParts& parts) {
    return parts.year * 12LL + parts.month;
}

std::int64_t dayOfYear(Date date) {
    DateParts first = partsOf(date);
    first.month = first.day = 1;
    first.hour = first.minute = first.second = 0;
    return dayNumber(date) - dayNumber(dateOf(first)) + 1;
}

} // namespace

Value year(Arguments a) {
    return part(a, &DateParts::year);
}
Value month(Arguments a) {
    return part(a, &DateParts::month);
}
Value day(Arguments a) {
    return part(a, &DateParts::day);
}
Value hour(Arguments a) {
    return part(a, &DateParts::hour);
}
Value minute(Arguments a) {
    return part(a, &DateParts::minute);
}
Value second(Arguments a) {
    return part(a, &DateParts::second);
}

Value weekday(Arguments a) {
    return anyNull(a) ? Value() : Value(weekdayOf(dateArgument(a[0]), firstWeekday(a, 1)));
}

Value monthName(Arguments a) {
    if (anyNull(a))
        return {};
    const std::int64_t month = a[0].asInteger();
    if (month < 1 || month > 12)
        invalidArgument();
    const std::string_view name = monthNames[static_cast<std::size_t>(month - 1)];
    return a.size() > 1 && a[1].asBoolean() ? name.substr(0, 3) : name;
}

Value weekdayName(Arguments a) {
    if (anyNull(a))
        return {};
    const std::int64_t day = a[0].asInteger();
    if (day < 1 || day > 7)
        invalidArgument();
    // Without a first day the week begins on Monday, as in the United Kingdom.
    const std::int64_t first = a.size() > 2 ? firstWeekday(a, 2) : 2;
    const std::string_view name = weekdayNames[static_cast<std::size_t>((day - 1 + first - 1) % 7)];
    return a.size() > 1 && a[1].asBoolean() ? name.substr(0, 3) : name;
}

Value dateSerial(Arguments a) {
    if (anyNull(a))
        return {};
    int year = smallInteger(a[0]);
    if (year >= 0 && year < 100)
        year += year < 30 ? 2000 : 1900;
    if (year > 9999 || year < 0)
        invalidArgument();
    return checkedDate(dateOf({year, smallInteger(a[1]), smallInteger(a[2]), 0, 0, 0}));
}

Value timeSerial(Arguments a) {
    if (anyNull(a))
        return {};
    return fromSeconds(std::int64_t{smallInteger(a[0])} * 3600 + std::int64_t{smallInteger(a[1])} * 60 +
                       smallInteger(a[2]));
}

/// DateAdd(interval, count, date)
Value dateAdd(Arguments a) {
    if (anyNull(a))
        return {};
    const std::string interval = lowerText(a[0].asText());
    const std::int64_t count = a[1].asInteger();
    const Date date = dateArgument(a[2]);
    if (count < -mostSteps || count > mostSteps)
        throw RuntimeError(6, "Overflow");
    if (interval == "yyyy")
        return addMonths(date, count * 12);
    if (interval == "q")
        return addMonths(date, count * 3);
    if (interval == "m")
        return addMonths(date, count);
    if (interval == "d" || interval == "y" || interval == "w")
        return fromSeconds(seconds(date) + count * 86400);
    if (interval == "ww")
        return fromSeconds(seconds(date) + count * 7 * 86400);
    if (interval == "h")
        return fromSeconds(seconds(date) + count * 3600);
    if (interval == "n")
        return fromSeconds(seconds(date) + count * 60);
    if (interval == "s")
        return fromSeconds(seconds(date) + count);
    invalidArgument();
}

/// DateDiff(interval, from, to): how many times the interval's boundary is crossed.
Value dateDiff(Arguments a) {
    if (anyNull(a))
        return {};
    const std::string interval = lowerText(a[0].asText());
    const Date from = dateArgument(a[1]);
    const Date to = dateArgument(a[2]);
    const DateParts first = partsOf(from);
    const DateParts last = partsOf(to);
    const auto floorDivide = [](std::int64_t x, std::int64_t y) { return x >= 0 ? x / y : -((-x + y - 1) / y); };
    if (interval == "yyyy")
        return std::int64_t{last.year - first.year};
    if (interval == "q")
        return std::int64_t{(last.year - first.year) * 4 + (last.month - 1) / 3 - (first.month - 1) / 3};
    if (interval == "m")
        return monthsOf(last) - monthsOf(first);
    if (interval == "d" || interval == "y")
        return floorDivide(seconds(to), 86400) - floorDivide(seconds(from), 86400);
    if (interval == "w")
        return (floorDivide(seconds(to), 86400) - floorDivide(seconds(from), 86400)) / 7;
    if (interval == "ww") {
        const std::int64_t start = firstWeekday(a, 3);
        const auto week = [&](Date date) { return floorDivide(dayNumber(date) - weekdayOf(date, start), 7); };
        return week(to) - week(from);
    }
    if (interval == "h")
        return floorDivide(seconds(to), 3600) - floorDivide(seconds(from), 3600);
    if (interval == "n")
        return floorDivide(seconds(to), 60) - floorDivide(seconds(from), 60);
    if (interval == "s")
        return seconds(to) - seconds(from);
    invalidArgument();
}

Value datePart(Arguments a) {
    if (anyNull(a))
        return {};
    const std::string interval = lowerText(a[0].asText());
    const Date date = dateArgument(a[1]);
    const DateParts parts = partsOf(date);
    if (interval == "yyyy")
        return std::int64_t{parts.year};
    if (interval == "q")
        return std::int64_t{(parts.month - 1) / 3 + 1};
    if (interval == "m")
        return std::int64_t{parts.month};
    if (interval == "y")
        return dayOfYear(date);
    if (interval == "d")
        return std::int64_t{parts.day};
    if (interval == "w")
        return weekdayOf(date, firstWeekday(a, 2));
    if (interval == "ww") { // the week that holds 1 January is the first
        DateParts newYear;
        newYear.year = parts.year;
        newYear.month = newYear.day = 1;
        return (dayOfYear(date) - 1 + weekdayOf(dateOf(newYear), firstWeekday(a, 2)) - 1) / 7 + 1;
    }
    if (interval == "h")
        return std::int64_t{parts.hour};
    if (interval == "n")
        return std::int64_t{parts.minute};
    if (interval == "s")
        return std::int64_t{parts.second};
    invalidArgument();
}

Value now(Arguments) {
    return localNow();
}

Value date(Arguments) {
    return Date{std::trunc(localNow().days)};
}

Value time(Arguments) {
    const DateParts parts = partsOf(localNow());
    DateParts time;
    time.hour = parts.hour;
    time.minute = parts.minute;
    time.second = parts.second;
    return dateOf(time);
}

} // namespace jet::functions
