#include "sample/installation/CallGenerator.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace sample {

namespace {

std::vector<double> everydayWeights() {
    std::vector<double> weights;
    for (const InboundNumber& number : inboundNumbers())
        weights.push_back(number.weight);
    return weights;
}

/// Three minutes on average, half an hour at most.
std::vector<int> makeTalkTimes() {
    constexpr std::size_t steps = 4096;
    constexpr double mean = 165;
    std::vector<int> times;
    for (std::size_t i = 0; i < steps; ++i) {
        const double rest = 1 - (static_cast<double>(i) + 0.5) / steps;
        times.push_back(12 + static_cast<int>(-mean * std::log(rest)));
    }
    return times;
}

std::vector<std::uint16_t> firstDestinations() {
    std::vector<std::uint16_t> first;
    for (std::size_t i = 0; i < destinations().size(); ++i) {
        while (first.size() <= static_cast<std::size_t>(destinations()[i].answerPoint))
            first.push_back(static_cast<std::uint16_t>(i));
    }
    first.push_back(static_cast<std::uint16_t>(destinations().size()));
    return first;
}

/// Per minute, in ten-thousandths of a pound: what a network charges the customer of a free number.
std::int64_t freephoneRate(CallerKind kind) {
    switch (kind) {
    case CallerKind::Mobile:
        return 850;
    case CallerKind::Overseas:
    case CallerKind::Ireland:
        return 1200;
    default:
        return 140;
    }
}

constexpr std::int64_t setUpCharge = 55;
constexpr std::int64_t deliveryRate = 30;
constexpr std::int64_t sharedRate = 95;

std::int64_t priceOf(Tariff tariff, CallerKind kind, int seconds) {
    switch (tariff) {
    case Tariff::Freephone:
        return setUpCharge + freephoneRate(kind) * seconds / 60;
    case Tariff::Delivery:
        return std::max<std::int64_t>(1, deliveryRate * seconds / 60);
    case Tariff::Shared:
        return -std::max<std::int64_t>(1, sharedRate * seconds / 60);
    case Tariff::StandardRate:
        break;
    }
    return 0;
}

/// The share of `weights` up to and with each of them.
std::vector<double> accumulated(std::vector<double> weights) {
    std::partial_sum(weights.begin(), weights.end(), weights.begin());
    const double total = weights.back();
    for (double& weight : weights)
        weight /= total;
    return weights;
}

} // namespace

CallGenerator::CallGenerator(const CallCalendar& calendar, const CallerPool& callers, std::int64_t calls,
                             std::uint64_t seed)
    : calendar_(calendar), callers_(callers), calls_(calls), random_(seed), numbers_(everydayWeights()),
      talkTimes_(makeTalkTimes()), firstDestination_(firstDestinations()),
      daysDone_(accumulated({calendar.dayWeights().begin(), calendar.dayWeights().end()})) {}

bool CallGenerator::next(Call& call) {
    if (made_ == calls_)
        return false;
    while (made_ == minuteEnd_)
        beginNextMinute();
    const double place =
        (static_cast<double>(made_ - minuteStart_) + random_.unit()) / static_cast<double>(minuteEnd_ - minuteStart_);
    call = {};
    call.day = day_;
    call.second = minute_ * 60 + static_cast<int>(place * 60);
    const Campaign* campaign = drawCampaign();
    call.number = campaign ? campaign->number : static_cast<std::uint16_t>(numbers_.draw(random_));
    call.caller = campaign ? callers_.drawIn(campaign->tvRegion, random_) : callers_.draw(random_);
    route(call);
    ++made_;
    return true;
}

void CallGenerator::beginNextMinute() {
    if (day_ < 0 || minute_ == minutesOfDay - 1)
        beginNextDay();
    else
        ++minute_;
    minuteStart_ = made_;
    minuteEnd_ = dayStart_ + std::llround(minutesDone_[static_cast<std::size_t>(minute_)] *
                                          static_cast<double>(dayEnd_ - dayStart_));
    isOpen_ = calendar_.isOpen(day_, minute_);
    load_ = calendar_.load(day_, minute_);
    campaigns_.clear();
    for (const Campaign& campaign : calendar_.campaigns()) {
        if (const double share = calendar_.campaignShare(campaign, day_, minute_); share > 0)
            campaigns_.push_back({&campaign, share});
    }
}

void CallGenerator::beginNextDay() {
    ++day_;
    minute_ = 0;
    dayStart_ = made_;
    dayEnd_ = std::llround(daysDone_[static_cast<std::size_t>(day_)] * static_cast<double>(calls_));
    std::vector<double> weights;
    for (int minute = 0; minute < minutesOfDay; ++minute)
        weights.push_back(calendar_.minuteWeight(day_, minute) * random_.between(0.5, 1.5));
    minutesDone_ = accumulated(std::move(weights));
}

const Campaign* CallGenerator::drawCampaign() {
    if (campaigns_.empty())
        return nullptr;
    double place = random_.unit();
    for (const RunningCampaign& running : campaigns_) {
        if (place < running.share)
            return running.campaign;
        place -= running.share;
    }
    return nullptr;
}

void CallGenerator::route(Call& call) {
    constexpr double overflow = 0.06;
    constexpr std::size_t nightDesk = 11;
    std::size_t place = static_cast<std::size_t>(inboundNumbers()[call.number].answerPoint);
    bool overflowed = false;
    if (!isOpen_) {
        place = nightDesk;
    } else if (random_.unit() < overflow * load_) {
        place = static_cast<std::size_t>(answerPoints()[place].overflowTo);
        overflowed = true;
    }
    call.answerPoint = static_cast<std::uint16_t>(place);
    const std::uint64_t lines = firstDestination_[place + 1] - firstDestination_[place];
    call.destination = static_cast<std::uint16_t>(firstDestination_[place] + random_.below(lines));

    const double answered = isOpen_ ? 0.955 - 0.13 * load_ * load_ : 0.55;
    if (random_.unit() < std::max(answered, 0.35))
        talk(call, overflowed);
    else
        fail(call);
}

void CallGenerator::talk(Call& call, bool overflowed) {
    call.answerInd = overflowed ? '8' : '0';
    const int ringing = 3 + static_cast<int>(random_.below(24));
    call.answerTime = talkTimes_[random_.below(talkTimes_.size())];
    const double u = random_.unit();
    call.legs = u < 0.93 ? 1 : u < 0.99 ? 2 : 3;
    // A call that is passed on has a first leg of its own, in front of the talk.
    call.duration1 = call.legs == 1 ? ringing + call.answerTime : ringing + 10 + static_cast<int>(random_.below(50));
    call.actualDuration = call.legs == 1 ? call.duration1 : call.duration1 + call.answerTime;
    call.discounted = priceOf(inboundNumbers()[call.number].tariff, callers_.codeOf(call.caller).kind, call.answerTime);
}

void CallGenerator::fail(Call& call) {
    constexpr std::array<char, 4> others{'3', '5', '6', '7'};
    const double engaged = isOpen_ ? 0.60 : 0.08;
    const double ringing = isOpen_ ? 0.25 : 0.52;
    const double u = random_.unit();
    if (u < engaged) {
        call.answerInd = u < engaged * 0.75 ? '2' : '9';
        return;
    }
    call.legs = 1;
    if (u < engaged + ringing) {
        call.answerInd = '4';
        call.actualDuration = 15 + static_cast<int>(random_.below(75));
    } else {
        call.answerInd = others[random_.below(others.size())];
        call.actualDuration = 2 + static_cast<int>(random_.below(20));
        // A recorded announcement is charged for, though nobody answers.
        if (call.answerInd == '5')
            call.discounted =
                priceOf(inboundNumbers()[call.number].tariff, callers_.codeOf(call.caller).kind, call.actualDuration);
    }
    call.duration1 = call.actualDuration;
}

} // namespace sample
