#include "sample/geography/PlaneGeometry.h"
#include "sample/installation/Customer.h"

#include <algorithm>
#include <numeric>

namespace sample {

namespace {

/// Share of the population that has each exchange.
std::vector<double> peopleOfExchanges(const Geography& geography) {
    std::vector<double> people(geography.exchangeAreas.size());
    for (const CallCode& code : geography.codes)
        people[static_cast<std::size_t>(code.exchange)] += code.weight;
    return people;
}

std::vector<bool> districtsWithCallers(const Geography& geography) {
    std::vector<bool> has(geography.postcodeDistricts.size());
    for (const CallCode& code : geography.codes)
        has[static_cast<std::size_t>(code.postcodeDistrict)] = true;
    return has;
}

struct GroupPlace {
    std::string_view name;
    MapPoint centre;
    int districts;
};

constexpr std::array<GroupPlace, 10> groupPlaces{{
    {"North East Branches", {42500, 56500}, 22},
    {"Scottish Branches", {25900, 66500}, 30},
    {"Yorkshire Branches", {43000, 43400}, 26},
    {"North West Branches", {38400, 39800}, 28},
    {"West Midlands Branches", {40700, 28700}, 24},
    {"East Anglia Branches", {62300, 30900}, 16},
    {"London Branches", {53000, 18000}, 30},
    {"South Coast Branches", {44200, 11300}, 14},
    {"South Wales Branches", {31800, 17600}, 12},
    {"Northern Ireland Branches", {14600, 53000}, 8},
}};

} // namespace

std::vector<MapPoint> placeBranches(const Geography& geography) {
    constexpr std::size_t branchCount = 64;
    constexpr double leastDistance = 1500; // 15 kilometres
    const std::vector<double> people = peopleOfExchanges(geography);
    std::vector<std::size_t> order(people.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t l, std::size_t r) { return people[l] > people[r]; });

    std::vector<MapPoint> placed;
    for (const std::size_t exchange : order) {
        const MapPoint place = geography.exchangeAreas[exchange].label;
        const bool isFar = std::all_of(placed.begin(), placed.end(),
                                       [&](MapPoint other) { return distance(place, other) >= leastDistance; });
        if (isFar)
            placed.push_back(place);
        if (placed.size() == branchCount)
            break;
    }
    return placed;
}

std::vector<BranchGroup> groupBranches(const Geography& geography) {
    std::vector<bool> isFree = districtsWithCallers(geography);
    std::vector<BranchGroup> groups;
    for (const GroupPlace& place : groupPlaces) {
        std::vector<int> nearest;
        for (std::size_t i = 0; i < isFree.size(); ++i) {
            if (isFree[i])
                nearest.push_back(static_cast<int>(i));
        }
        const auto distanceOf = [&](int district) {
            return distance(geography.postcodeDistricts[static_cast<std::size_t>(district)].label, place.centre);
        };
        std::stable_sort(nearest.begin(), nearest.end(), [&](int l, int r) { return distanceOf(l) < distanceOf(r); });
        nearest.resize(std::min(nearest.size(), static_cast<std::size_t>(place.districts)));
        for (const int district : nearest)
            isFree[static_cast<std::size_t>(district)] = false;
        groups.push_back({place.name, std::move(nearest)});
    }
    return groups;
}

} // namespace sample
