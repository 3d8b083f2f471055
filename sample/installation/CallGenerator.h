#pragma once

#include "sample/installation/CallCalendar.h"
#include "sample/installation/CallerPool.h"
#include "sample/installation/Customer.h"

#include <cstdint>
#include <vector>

namespace sample {

/// One call, in the terms of TblTeleItem. Indices go into inboundNumbers(), answerPoints() and destinations().
struct Call {
    int day = 0;              ///< of the calendar
    int second = 0;           ///< of the day
    std::uint32_t caller = 0; ///< of the pool
    std::uint16_t number = 0;
    std::uint16_t answerPoint = 0;
    std::uint16_t destination = 0;
    char answerInd = '0';
    int legs = 0;
    int answerTime = 0; ///< seconds, like the next two
    int actualDuration = 0;
    int duration1 = 0;           ///< of the first leg
    std::int64_t discounted = 0; ///< ten-thousandths of a pound: above 0 the customer pays, below 0 he is paid
};

/// Makes the calls in the order of their times, one after the other. The same arguments give the same calls.
class CallGenerator {
public:
    /// The references must outlive the generator.
    CallGenerator(const CallCalendar& calendar, const CallerPool& callers, std::int64_t calls, std::uint64_t seed);

    /// The next call; false when all are made.
    bool next(Call& call);

private:
    struct RunningCampaign {
        const Campaign* campaign = nullptr;
        double share = 0;
    };

    void beginNextMinute();
    void beginNextDay();
    const Campaign* drawCampaign();
    /// Where the call goes and how it ends.
    void route(Call& call);
    void talk(Call& call, bool overflowed);
    void fail(Call& call);

    const CallCalendar& calendar_;
    const CallerPool& callers_;
    std::int64_t calls_;
    SeededRandom random_;
    WeightedChoice numbers_;
    std::vector<int> talkTimes_;                  ///< seconds, at even steps of probability
    std::vector<std::uint16_t> firstDestination_; ///< of each answer point, and the end
    std::vector<double> daysDone_;                ///< share of the calls up to and with each day

    std::int64_t made_ = 0;
    int day_ = -1;
    std::int64_t dayStart_ = 0; ///< calls made before the day and when it is over
    std::int64_t dayEnd_ = 0;
    std::vector<double> minutesDone_; ///< share of the day's calls up to and with each minute
    int minute_ = 0;
    std::int64_t minuteStart_ = 0;
    std::int64_t minuteEnd_ = 0;
    bool isOpen_ = false;
    double load_ = 0;
    std::vector<RunningCampaign> campaigns_;
};

} // namespace sample
