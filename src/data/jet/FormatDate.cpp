#include "data/jet/Format.h"

#include "data/jet/DateNames.h"

#include <cmath>
#include <cstdio>

namespace jet {

namespace {

std::string twoDigits(int number) {
    char text[16];
    std::snprintf(text, sizeof text, "%02d", number);
    return text;
}

std::size_t weekdayFromSunday(Date date) {
    const auto day = static_cast<long long>(std::floor(date.days + 1e-9));
    return static_cast<std::size_t>(((day + 6) % 7 + 7) % 7);
}

int dayOfYear(const DateParts& parts) {
    DateParts day = parts;
    day.hour = day.minute = day.second = 0;
    DateParts first = day;
    first.month = first.day = 1;
    return static_cast<int>(dateOf(day).days - dateOf(first).days) + 1;
}

/// Writes a date sign by sign; a run of one letter is one sign.
class DatePicture {
public:
    DatePicture(Date date, std::string_view picture)
        : date_(date), parts_(partsOf(date)), picture_(picture), upper_(upperText(picture)),
          halfDay_(upper_.find("AM/PM") != std::string::npos || upper_.find("A/P") != std::string::npos ||
                   upper_.find("AMPM") != std::string::npos) {}

    std::string write() {
        while (at_ < picture_.size())
            sign();
        return std::move(text_);
    }

private:
    void sign() {
        if (upper_.compare(at_, 5, "AM/PM") == 0)
            return half(picture_[at_] == 'a' ? "am" : "AM", picture_[at_] == 'a' ? "pm" : "PM", 5);
        if (upper_.compare(at_, 4, "AMPM") == 0)
            return half("AM", "PM", 4);
        if (upper_.compare(at_, 3, "A/P") == 0)
            return half(picture_[at_] == 'a' ? "a" : "A", picture_[at_] == 'a' ? "p" : "P", 3);
        const char c = picture_[at_];
        if (c == '"') {
            const std::size_t end = std::min(picture_.find('"', at_ + 1), picture_.size());
            text_ += picture_.substr(at_ + 1, end - at_ - 1);
            at_ = std::min(end + 1, picture_.size());
            return;
        }
        if (c == '\\') {
            text_ += picture_.substr(at_ + 1, 1);
            at_ += 2;
            return;
        }
        std::size_t run = 1;
        while (at_ + run < upper_.size() && upper_[at_ + run] == upper_[at_])
            ++run;
        const char kind = upper_[at_];
        if (std::string_view("DMYHNSQWTC").find(kind) == std::string_view::npos) {
            text_ += c;
            ++at_;
            return;
        }
        at_ += run;
        letters(kind, run);
        if (kind != ':')
            behindHours_ = kind == 'H';
    }

    void half(std::string_view before, std::string_view after, std::size_t length) {
        text_ += parts_.hour < 12 ? before : after;
        at_ += length;
    }

    void number(int value, std::size_t run) { text_ += run >= 2 ? twoDigits(value) : std::to_string(value); }

    void letters(char kind, std::size_t run) {
        switch (kind) {
        case 'D':
            day(run);
            break;
        case 'M':
            month(run);
            break;
        case 'Y':
            if (run == 1)
                text_ += std::to_string(dayOfYear(parts_));
            else
                text_ += run == 2 ? twoDigits(parts_.year % 100) : std::to_string(parts_.year);
            break;
        case 'H':
            number(halfDay_ ? (parts_.hour + 11) % 12 + 1 : parts_.hour, run);
            break;
        case 'N':
            number(parts_.minute, run);
            break;
        case 'S':
            number(parts_.second, run);
            break;
        case 'Q':
            text_ += std::to_string((parts_.month - 1) / 3 + 1);
            break;
        case 'W':
            text_ += run == 1 ? std::to_string(weekdayFromSunday(date_) + 1)
                              : std::to_string((dayOfYear(parts_) - 1) / 7 + 1);
            break;
        case 'T':
            text_ += twoDigits(parts_.hour) + ":" + twoDigits(parts_.minute) + ":" + twoDigits(parts_.second);
            break;
        default: // C
            text_ += Value(date_).asText();
        }
    }

    void day(std::size_t run) {
        if (run <= 2)
            number(parts_.day, run);
        else if (run <= 4)
            text_ += weekdayNames[weekdayFromSunday(date_)].substr(0, run == 3 ? 3 : std::string_view::npos);
        else
            text_ += formatDate(date_, run == 5 ? "dd/mm/yyyy" : "dd mmmm yyyy");
    }

    /// Right behind the hours an m means minutes.
    void month(std::size_t run) {
        if (run <= 2)
            number(behindHours_ ? parts_.minute : parts_.month, run);
        else
            text_ +=
                monthNames[static_cast<std::size_t>(parts_.month - 1)].substr(0, run == 3 ? 3 : std::string_view::npos);
    }

    Date date_;
    DateParts parts_;
    std::string_view picture_;
    std::string upper_;
    bool halfDay_;
    bool behindHours_ = false;
    std::size_t at_ = 0;
    std::string text_;
};

} // namespace

std::string formatDate(Date date, std::string_view picture) {
    return DatePicture(date, picture).write();
}

} // namespace jet
