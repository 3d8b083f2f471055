#include "sample/installation/CallCalendar.h"

#include "sample/geography/SeededRandom.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace sample {

namespace {

constexpr DateParts firstDate{.year = 2025, .month = 3, .day = 1, .hour = 0};
constexpr DateParts lastDate{.year = 2025, .month = 8, .day = 31, .hour = 0};

/// The holidays of the time, as days of the calendar: Good Friday, Easter Monday, the two of May, the one of August.
constexpr std::array<int, 5> holidays{48, 51, 65, 86, 177};

// Sunday first.
constexpr std::array<double, 7> weekdayWeights{0.42, 1.24, 1.10, 1.05, 1.00, 1.04, 0.82};

using HourWeights = std::array<double, 24>;
constexpr HourWeights weekdayHours{0.2, 0.1, 0.1, 0.1, 0.1, 0.2, 0.6, 2.0, 5.5, 8.5, 10.0, 9.4,
                                   8.6, 8.2, 8.4, 8.0, 7.4, 6.8, 5.6, 4.8, 3.2, 1.6, 0.8,  0.4};
constexpr HourWeights saturdayHours{0.2,  0.1, 0.1, 0.1, 0.1, 0.2, 0.4, 1.2, 4.0, 8.0, 11.0, 11.5,
                                    10.0, 9.0, 8.5, 7.0, 5.5, 3.8, 2.6, 2.0, 1.4, 0.9, 0.5,  0.3};
constexpr HourWeights sundayHours{0.3,  0.2,  0.1,  0.1, 0.1, 0.2, 0.4, 0.8, 2.0, 5.0, 9.0, 11.0,
                                  11.0, 10.5, 10.0, 8.0, 5.0, 3.5, 3.0, 2.6, 2.0, 1.2, 0.6, 0.4};
constexpr double busiestHour = 10.0 * 1.24; // Monday from ten to eleven

/// The advertisement is shown in the evening, and the calls come at once.
constexpr int spotBegins = 19 * 60 + 40;
constexpr int spotEnds = 20 * 60 + 25;

bool isSpot(int minute) {
    return minute >= spotBegins && minute < spotEnds;
}

/// 0 on Sundays.
int weekdayOf(Date date) {
    return static_cast<int>(std::lround(date.days) - 1) % 7;
}

bool isHoliday(int day) {
    return std::find(holidays.begin(), holidays.end(), day) != holidays.end();
}

/// The weight of the hour, sliding over into the next in its second half.
double atMinute(const HourWeights& hours, int minute) {
    const double place = minute / 60.0 - 0.5;
    const auto before = static_cast<std::size_t>(std::floor(place) + 24) % 24;
    const double share = place - std::floor(place);
    return hours[before] * (1 - share) + hours[(before + 1) % 24] * share;
}

/// Gardens in spring, a quiet August.
double season(int day, int days) {
    const double phase = static_cast<double>(day) / days;
    return 1 + 0.22 * std::sin(2 * std::numbers::pi * phase * 0.9) + 0.05 * phase;
}

} // namespace

CallCalendar::CallCalendar(std::size_t tvRegions, std::uint64_t seed) {
    const int days = static_cast<int>(dateOf(lastDate).days - dateOf(firstDate).days) + 1;
    SeededRandom random(seed);
    for (int day = 0; day < days; ++day) {
        const double weekday = weekdayWeights[static_cast<std::size_t>(weekdayOf(date(day)))];
        dayWeights_.push_back(weekday * season(day, days) * (isHoliday(day) ? 0.45 : 1) * random.between(0.93, 1.07));
    }
    planCampaigns(tvRegions, random.bits());
    for (const Campaign& campaign : campaigns_) {
        for (int day = campaign.firstDay; day <= campaign.lastDay; ++day)
            dayWeights_[static_cast<std::size_t>(day)] *= 1 + campaignShare(campaign, day, 0);
    }
}

void CallCalendar::planCampaigns(std::size_t tvRegions, std::uint64_t seed) {
    constexpr int count = 7;
    constexpr std::array<std::uint16_t, 3> numbers{3, 4, 5};
    SeededRandom random(seed);
    for (int i = 0; i < count; ++i) {
        Campaign campaign;
        campaign.number = numbers[static_cast<std::size_t>(i) % numbers.size()];
        campaign.tvRegion = random.below(tvRegions);
        campaign.firstDay = 9 + i * dayCount() / count + static_cast<int>(random.below(8));
        campaign.lastDay = std::min(campaign.firstDay + 6 + static_cast<int>(random.below(8)), dayCount() - 1);
        campaign.strength = random.between(0.08, 0.20);
        campaigns_.push_back(campaign);
    }
}

Date CallCalendar::date(int day) const {
    return Date{dateOf(firstDate).days + day};
}

CallCalendar::Hours CallCalendar::hoursOf(int day) const {
    const int weekday = weekdayOf(date(day));
    if (weekday == 0 || isHoliday(day))
        return Hours::Sunday;
    return weekday == 6 ? Hours::Saturday : Hours::Weekday;
}

double CallCalendar::minuteWeight(int day, int minute) const {
    const Hours hours = hoursOf(day);
    const HourWeights& weights = hours == Hours::Weekday    ? weekdayHours
                                 : hours == Hours::Saturday ? saturdayHours
                                                            : sundayHours;
    double weight = atMinute(weights, minute);
    for (const Campaign& campaign : campaigns_) {
        if (isSpot(minute) && day >= campaign.firstDay && day <= campaign.lastDay)
            weight *= 1 + 12 * campaign.strength;
    }
    return weight;
}

double CallCalendar::load(int day, int minute) const {
    return minuteWeight(day, minute) * dayWeights_[static_cast<std::size_t>(day)] / busiestHour;
}

bool CallCalendar::isOpen(int day, int minute) const {
    switch (hoursOf(day)) {
    case Hours::Weekday:
        return minute >= 8 * 60 && minute < 21 * 60;
    case Hours::Saturday:
        return minute >= 8 * 60 && minute < 19 * 60;
    case Hours::Sunday:
        return minute >= 9 * 60 && minute < 17 * 60;
    }
    return false;
}

double CallCalendar::campaignShare(const Campaign& campaign, int day, int minute) const {
    if (day < campaign.firstDay || day > campaign.lastDay)
        return 0;
    const double age = static_cast<double>(day - campaign.firstDay) / std::max(1, campaign.lastDay - campaign.firstDay);
    const double share = campaign.strength * (1 - 0.75 * age);
    return isSpot(minute) ? std::min(0.45, 4 * share) : share;
}

} // namespace sample
