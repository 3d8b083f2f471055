#include "sample/installation/CallerPool.h"

#include "sample/geography/PlaneGeometry.h"
#include "sample/installation/Customer.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace sample {

namespace {

struct KindShare {
    CallerKind kind;
    double share;
};

constexpr std::array<KindShare, 8> kindShares{{
    {CallerKind::Geographic, 0.650},
    {CallerKind::Mobile, 0.250},
    {CallerKind::Withheld, 0.035},
    {CallerKind::OtherNetwork, 0.015},
    {CallerKind::Untraceable, 0.010},
    {CallerKind::Overseas, 0.020},
    {CallerKind::Ireland, 0.010},
    {CallerKind::Voip, 0.010},
}};

constexpr double payphoneShare = 0.004; // of the callers with a place

/// How much the nearest branch adds to the wish to call, from 0 far off to 1 next door.
double closeness(MapPoint place, std::span<const MapPoint> branches) {
    constexpr double reach = 3000; // 30 kilometres
    double nearest = 1e9;
    for (const MapPoint& branch : branches)
        nearest = std::min(nearest, distance(place, branch));
    return std::exp(-nearest / reach);
}

std::vector<double> codeWeights(std::span<const ReferenceCode> codes, const Geography& geography) {
    const std::vector<MapPoint> branches = placeBranches(geography);
    std::vector<double> ofDistrict;
    for (const Area& district : geography.postcodeDistricts)
        ofDistrict.push_back(0.3 + closeness(district.label, branches));

    std::vector<double> weights;
    weights.reserve(codes.size());
    std::array<double, kindShares.size()> totals{};
    const auto shareOf = [](CallerKind kind) {
        return static_cast<std::size_t>(std::find_if(kindShares.begin(), kindShares.end(),
                                                     [&](const KindShare& share) { return share.kind == kind; }) -
                                        kindShares.begin());
    };
    for (const ReferenceCode& code : codes) {
        double weight = code.weight;
        if (code.kind == CallerKind::Geographic) {
            const CallCode& from = geography.codes[static_cast<std::size_t>(code.geographyCode)];
            weight *= ofDistrict[static_cast<std::size_t>(from.postcodeDistrict)];
        }
        weights.push_back(weight);
        totals[shareOf(code.kind)] += weight;
    }
    for (std::size_t i = 0; i < codes.size(); ++i) {
        const std::size_t share = shareOf(codes[i].kind);
        weights[i] *= kindShares[share].share / totals[share];
    }
    return weights;
}

std::uint32_t powerOfTen(int digits) {
    std::uint32_t power = 1;
    for (int i = 0; i < digits; ++i)
        power *= 10;
    return power;
}

} // namespace

CallerPool::CallerPool(std::span<const ReferenceCode> codes, const Geography& geography, std::size_t size,
                       std::uint64_t seed)
    : codes_(codes), callers_(size) {
    const WeightedChoice choice(codeWeights(codes, geography));
    std::vector<std::uint32_t> numbers;
    for (const ReferenceCode& code : codes)
        numbers.push_back(powerOfTen(code.furtherDigits));
    SeededRandom random(seed);
    for (Caller& caller : callers_) {
        caller.code = choice.draw(random);
        caller.number = static_cast<std::uint32_t>(random.below(numbers[caller.code]));
        caller.isPayphone = codes[caller.code].kind == CallerKind::Geographic && random.unit() < payphoneShare;
    }
    groupByRegion(geography);
}

void CallerPool::groupByRegion(const Geography& geography) {
    const auto regionOf = [&](const Caller& caller) {
        const int code = codes_[caller.code].geographyCode;
        return code < 0 ? -1 : geography.codes[static_cast<std::size_t>(code)].tvRegion;
    };
    regionStart_.assign(geography.tvRegions.size() + 1, 0);
    for (const Caller& caller : callers_) {
        if (const int region = regionOf(caller); region >= 0)
            ++regionStart_[static_cast<std::size_t>(region) + 1];
    }
    for (std::size_t i = 1; i < regionStart_.size(); ++i)
        regionStart_[i] += regionStart_[i - 1];
    byRegion_.resize(regionStart_.back());
    std::vector<std::size_t> next = regionStart_;
    for (std::uint32_t i = 0; i < callers_.size(); ++i) {
        if (const int region = regionOf(callers_[i]); region >= 0)
            byRegion_[next[static_cast<std::size_t>(region)]++] = i;
    }
}

std::uint32_t CallerPool::drawRank(SeededRandom& random, std::size_t count) {
    constexpr double flatness = 0.1;
    constexpr double cubed = flatness * flatness * flatness;
    const double u = flatness + (1 - flatness) * random.unit();
    const double place = (u * u * u - cubed) / (1 - cubed);
    return static_cast<std::uint32_t>(std::min(place * static_cast<double>(count), static_cast<double>(count - 1)));
}

std::uint32_t CallerPool::drawIn(std::size_t tvRegion, SeededRandom& random) const {
    const std::size_t start = regionStart_[tvRegion];
    const std::size_t count = regionStart_[tvRegion + 1] - start;
    return count == 0 ? draw(random) : byRegion_[start + drawRank(random, count)];
}

} // namespace sample
