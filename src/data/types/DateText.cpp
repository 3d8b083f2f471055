#include "core/RuntimeError.h"
#include "data/types/Value.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <optional>
#include <span>
#include <vector>

namespace {

constexpr std::int64_t secondsPerDay = 86400;
const std::chrono::sys_days dayZero = std::chrono::year{1899} / 12 / 30;

[[noreturn]] void noDate(std::string_view text) {
    throw RuntimeError(13, "'" + std::string(text) + "' is not a date");
}

/// A run of digits or letters of a date text, and the character behind it (0 at the end).
struct Piece {
    std::string text;
    bool isNumber = false;
    int number = 0;
    char separator = 0;
};

std::vector<Piece> splitPieces(std::string_view text) {
    std::vector<Piece> pieces;
    std::size_t i = 0;
    const auto digit = [](char c) { return c >= '0' && c <= '9'; };
    const auto letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    while (i < text.size()) {
        const std::size_t start = i;
        if (digit(text[i])) {
            while (i < text.size() && digit(text[i]))
                ++i;
        } else if (letter(text[i])) {
            while (i < text.size() && letter(text[i]))
                ++i;
        } else {
            noDate(text);
        }
        Piece piece;
        piece.text = upperText(text.substr(start, i - start));
        piece.isNumber = digit(text[start]);
        if (piece.isNumber) {
            const auto [end, failed] =
                std::from_chars(piece.text.data(), piece.text.data() + piece.text.size(), piece.number);
            if (failed != std::errc{} || piece.text.size() > 4)
                noDate(text);
        }
        while (i < text.size() && text[i] == ' ') {
            piece.separator = ' ';
            ++i;
        }
        if (i < text.size() &&
            (text[i] == '/' || text[i] == '-' || text[i] == ':' || text[i] == '.' || text[i] == ',')) {
            piece.separator = text[i++];
            while (i < text.size() && text[i] == ' ')
                ++i;
            if (i == text.size())
                noDate(text);
        }
        pieces.push_back(std::move(piece));
    }
    return pieces;
}

std::optional<int> monthNamed(std::string_view name) {
    static constexpr std::array<std::string_view, 12> names{"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                                            "MAY",       "JUNE",     "JULY",     "AUGUST",
                                                            "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};
    if (name.size() < 3)
        return std::nullopt;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i].starts_with(name))
            return static_cast<int>(i) + 1;
    }
    return std::nullopt;
}

int fullYear(const Piece& piece) {
    if (piece.text.size() > 2)
        return piece.number;
    return piece.number < 30 ? 2000 + piece.number : 1900 + piece.number;
}

double dayNumber(int year, int month, int day, std::string_view text) {
    const std::chrono::year_month_day date{std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
                                           std::chrono::day{static_cast<unsigned>(day)}};
    if (month < 1 || month > 12 || day < 1 || year < 100 || year > 9999 || !date.ok())
        noDate(text);
    return static_cast<double>((std::chrono::sys_days{date} - dayZero).count());
}

/// Three pieces of a date in the order they were written; `pieces` has exactly three.
double parseDay(std::span<const Piece> pieces, bool monthFirst, std::string_view text) {
    if (pieces[0].isNumber && pieces[0].text.size() == 4) { // year first
        if (!pieces[2].isNumber)
            noDate(text);
        const auto named = pieces[1].isNumber ? std::optional<int>(pieces[1].number) : monthNamed(pieces[1].text);
        if (!named)
            noDate(text);
        return dayNumber(pieces[0].number, *named, pieces[2].number, text);
    }
    if (!pieces[2].isNumber)
        noDate(text);
    const int year = fullYear(pieces[2]);
    if (!pieces[1].isNumber || !pieces[0].isNumber) {
        const bool nameFirst = !pieces[0].isNumber;
        const auto month = monthNamed(pieces[nameFirst ? 0 : 1].text);
        if (!month || !pieces[nameFirst ? 1 : 0].isNumber)
            noDate(text);
        return dayNumber(year, *month, pieces[nameFirst ? 1 : 0].number, text);
    }
    int month = pieces[monthFirst ? 0 : 1].number;
    int day = pieces[monthFirst ? 1 : 0].number;
    if (month > 12 && day <= 12)
        std::swap(month, day);
    return dayNumber(year, month, day, text);
}

/// Hours, minutes and perhaps seconds, with AM or PM behind them.
double parseTime(std::span<const Piece> pieces, std::string_view text) {
    std::array<int, 3> parts{};
    std::size_t count = 0;
    bool afternoon = false;
    bool halfDay = false;
    for (const Piece& piece : pieces) {
        if (!piece.isNumber && (piece.text == "AM" || piece.text == "PM") && !halfDay && count > 0) {
            halfDay = true;
            afternoon = piece.text == "PM";
            continue;
        }
        if (!piece.isNumber || count == parts.size() || halfDay)
            noDate(text);
        parts[count++] = piece.number;
    }
    if (count == 0 || (count == 1 && !halfDay) || parts[0] > (halfDay ? 12 : 23) || parts[1] > 59 || parts[2] > 59)
        noDate(text);
    if (halfDay)
        parts[0] = parts[0] % 12 + (afternoon ? 12 : 0);
    return static_cast<double>(parts[0] * 3600 + parts[1] * 60 + parts[2]) / static_cast<double>(secondsPerDay);
}

} // namespace

Date checkedDate(Date date) {
    constexpr double firstDay = -657434.0; // 1 January 100
    constexpr double behindLastDay = 2958466.0;
    if (!(date.days >= firstDay && date.days < behindLastDay))
        throw RuntimeError(6, "Overflow: the date lies outside the years 100 to 9999");
    return date;
}

DateParts partsOf(Date date) {
    // The fraction of a day before day zero still counts forward from midnight.
    double day = std::trunc(date.days);
    auto second =
        static_cast<std::int64_t>(std::llround(std::fabs(date.days - day) * static_cast<double>(secondsPerDay)));
    if (second >= secondsPerDay) {
        second -= secondsPerDay;
        day += 1.0;
    }
    DateParts parts;
    if (std::fabs(day) < 4'000'000.0) {
        const std::chrono::year_month_day ymd{dayZero + std::chrono::days{static_cast<int>(day)}};
        parts.year = static_cast<int>(ymd.year());
        parts.month = static_cast<int>(static_cast<unsigned>(ymd.month()));
        parts.day = static_cast<int>(static_cast<unsigned>(ymd.day()));
    }
    parts.hour = static_cast<int>(second / 3600);
    parts.minute = static_cast<int>(second / 60 % 60);
    parts.second = static_cast<int>(second % 60);
    return parts;
}

Date dateOf(const DateParts& parts) {
    const double time =
        static_cast<double>(parts.hour * 3600 + parts.minute * 60 + parts.second) / static_cast<double>(secondsPerDay);
    // Months and days outside their range carry over into years and months.
    const int monthIndex = parts.year * 12 + parts.month - 1;
    const int year = monthIndex >= 0 ? monthIndex / 12 : (monthIndex - 11) / 12;
    const std::chrono::year_month_day first{std::chrono::year{year},
                                            std::chrono::month{static_cast<unsigned>(monthIndex - year * 12 + 1)},
                                            std::chrono::day{1}};
    const auto day = std::chrono::sys_days{first} + std::chrono::days{parts.day - 1};
    const auto days = static_cast<double>((day - dayZero).count());
    return Date{days < 0 ? days - time : days + time};
}

Date parseDate(std::string_view text, bool monthFirst) {
    std::string_view trimmed = text;
    while (!trimmed.empty() && trimmed.front() == ' ')
        trimmed.remove_prefix(1);
    while (!trimmed.empty() && trimmed.back() == ' ')
        trimmed.remove_suffix(1);
    if (trimmed.empty() || trimmed.size() > 60)
        noDate(text);
    const std::vector<Piece> pieces = splitPieces(trimmed);
    const bool timeOnly = pieces[0].separator == ':' || (pieces.size() == 2 && pieces[0].isNumber &&
                                                         (pieces[1].text == "AM" || pieces[1].text == "PM"));
    if (timeOnly)
        return Date{parseTime(pieces, text)};
    if (pieces.size() < 3)
        noDate(text);
    for (std::size_t i = 0; i < 2; ++i) {
        if (pieces[i].separator == ':' || pieces[i].separator == 0)
            noDate(text);
    }
    const double day = parseDay(std::span(pieces).first(3), monthFirst, text);
    if (pieces.size() == 3)
        return pieces[2].separator == 0 || pieces[2].separator == ' ' ? Date{day} : (noDate(text), Date{});
    std::size_t timeAt = 3;
    if (pieces[2].separator != ' ' && pieces[2].separator != ',')
        noDate(text);
    const double time = parseTime(std::span(pieces).subspan(timeAt), text);
    return Date{day < 0 ? day - time : day + time};
}
