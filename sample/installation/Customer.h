#pragma once

#include "sample/geography/Geography.h"

#include <array>
#include <span>
#include <string_view>
#include <vector>

namespace sample {

/// The invented customer: a retailer of household goods with branches all over the country.
inline constexpr std::string_view tallyAccount = "SAMPLE01";

/// Who pays for a call to an inbound number.
enum class Tariff {
    Freephone,   ///< the customer pays
    Delivery,    ///< callers pay, and the customer a little for the way to him
    Shared,      ///< the customer gets a share of what callers pay
    StandardRate ///< callers pay, and nothing comes to the customer
};

struct InboundNumber {
    std::string_view number;
    Tariff tariff;
    double weight;                                   ///< of the everyday calls
    int answerPoint;                                 ///< where its calls go first; index into answerPoints()
    std::array<std::string_view, 3> communityGroups; ///< empty: none
};

struct AnswerPoint {
    std::string_view name;
    std::string_view group; ///< empty: none
    int overflowTo;         ///< index of the answer point that takes its calls when it is full
};

/// A destination ID of the network, and where its calls are answered.
struct Destination {
    std::string_view id;
    int answerPoint;
};

std::span<const InboundNumber> inboundNumbers();
std::span<const AnswerPoint> answerPoints();
/// Ordered by answer point; each answer point has at least two.
std::span<const Destination> destinations();
/// Names of the community groups, in alphabetical order.
std::vector<std::string_view> communityGroupNames();

/// Where the branches stand: in the most populous places that are not too close to each other.
std::vector<MapPoint> placeBranches(const Geography& geography);

/// A customer group of postcode districts that lie round one place.
struct BranchGroup {
    std::string_view name;
    std::vector<int> districts; ///< indices into Geography::postcodeDistricts
};

/// No district is in two groups; each group has 5 to 30.
std::vector<BranchGroup> groupBranches(const Geography& geography);

} // namespace sample
