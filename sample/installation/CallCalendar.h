#pragma once

#include "data/types/Value.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace sample {

inline constexpr int minutesOfDay = 24 * 60;

/// A television campaign for one inbound number in one region.
struct Campaign {
    std::uint16_t number = 0; ///< index into inboundNumbers()
    std::size_t tvRegion = 0; ///< index into Geography::tvRegions
    int firstDay = 0;         ///< of the calendar
    int lastDay = 0;
    double strength = 0; ///< share of all calls on its first day; fades to a quarter until its last
};

/// When people call: six months with their weekdays, holidays, opening hours and campaigns. Days count from 0.
class CallCalendar {
public:
    /// `tvRegions`: how many can have a campaign.
    CallCalendar(std::size_t tvRegions, std::uint64_t seed);

    int dayCount() const { return static_cast<int>(dayWeights_.size()); }
    Date date(int day) const;
    /// How many calls a day has, against other days.
    std::span<const double> dayWeights() const { return dayWeights_; }
    /// How many calls a minute of the day has, against other minutes of that day.
    double minuteWeight(int day, int minute) const;
    /// How full the lines are in that minute: 0 empty, 1 the busiest minute of an ordinary week.
    double load(int day, int minute) const;
    bool isOpen(int day, int minute) const;

    std::span<const Campaign> campaigns() const { return campaigns_; }
    /// Share of the calls of that minute that a campaign brings; 0 when it does not run.
    double campaignShare(const Campaign& campaign, int day, int minute) const;

private:
    enum class Hours { Weekday, Saturday, Sunday };
    Hours hoursOf(int day) const;
    void planCampaigns(std::size_t tvRegions, std::uint64_t seed);

    std::vector<double> dayWeights_;
    std::vector<Campaign> campaigns_;
};

} // namespace sample
