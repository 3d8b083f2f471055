#include "sample/geography/SeedPlaces.h"

#include "sample/geography/PlaneGeometry.h"

#include <algorithm>
#include <limits>
#include <numbers>

namespace sample {

namespace {

constexpr double apart = 30; // three hundred metres between any two places
constexpr double kilometre = 100;
constexpr double peoplePerSquareKilometre = 3000; // of a built-up area
constexpr double goldenAngle = 2.399963229728653;

/// Radius of a town's built-up area, map units.
double urbanRadius(double people) {
    return kilometre * std::sqrt(people / peoplePerSquareKilometre / std::numbers::pi);
}

MapPoint heading(double angle) {
    return {std::cos(angle), std::sin(angle)};
}

/// Gives out places, each on land and apart from those given before.
class PlaceBook {
public:
    PlaceBook(const Coast& coast, const Nations& nations, std::uint64_t seed)
        : coast_(coast), nations_(nations), random_(seed) {}

    /// The wanted place or, where that does not suit the town, one near by; `reach` is the way tried at first.
    int claim(MapPoint wanted, const Town& town, double reach) {
        double radius = 0;
        MapPoint place = wanted;
        while (!suits(place, town)) {
            radius += reach / 8;
            // Every other try looks round the town itself, where there is land of the right kind for certain.
            const MapPoint middle = tries_++ % 2 == 0 ? wanted : town.place;
            place = middle + heading(random_.between(0, 2 * std::numbers::pi)) * random_.between(0, radius);
        }
        places_.push_back(place);
        return static_cast<int>(places_.size()) - 1;
    }

    SeededRandom& random() { return random_; }
    std::vector<MapPoint> takePlaces() { return std::move(places_); }

private:
    bool suits(MapPoint place, const Town& town) const {
        return coast_.ringAt(place) == town.ring && nations_.at(town.ring, place) == town.nation &&
               std::none_of(places_.begin(), places_.end(),
                            [&](MapPoint other) { return distance(other, place) < apart; });
    }

    const Coast& coast_;
    const Nations& nations_;
    SeededRandom random_;
    std::uint64_t tries_ = 0;
    std::vector<MapPoint> places_;
};

/// How far a town's districts reach: over its built-up area, and half way to the next town that has districts.
double districtRadius(const Town& town, const Gazetteer& gazetteer) {
    double next = std::numeric_limits<double>::infinity();
    for (const Town& other : gazetteer.towns)
        if (&other != &town && !other.districts.empty())
            next = std::min(next, distance(other.place, town.place));
    return std::max(urbanRadius(town.people), std::min(0.45 * next, 8 * kilometre));
}

void placeDistricts(int townNumber, int centre, const Gazetteer& gazetteer, PlaceBook& book, Seeds& seeds) {
    const Town& town = gazetteer.towns[static_cast<std::size_t>(townNumber)];
    const std::size_t count = town.districts.size();
    if (count == 0)
        return;
    const double people = town.people / static_cast<double>(count);
    seeds.districts.push_back({town.districts.front(), centre, townNumber, people});
    const double radius = districtRadius(town, gazetteer);
    const double phase = book.random().between(0, 2 * std::numbers::pi);
    for (std::size_t i = 1; i < count; ++i) {
        // Evenly over the disc, as the seeds of a sunflower, so that neighbours in number are not far apart.
        const double share = std::sqrt(static_cast<double>(i) / static_cast<double>(count));
        const MapPoint wanted = town.place + heading(phase + goldenAngle * static_cast<double>(i)) * (radius * share);
        seeds.districts.push_back({town.districts[i],
                                   book.claim(wanted, town, radius / std::sqrt(static_cast<double>(count))), townNumber,
                                   people});
    }
}

} // namespace

Seeds placeSeeds(const Gazetteer& gazetteer, const Coast& coast, const Nations& nations, std::uint64_t seed) {
    Seeds seeds;
    PlaceBook book(coast, nations, seed);
    std::vector<int> centres;
    for (const Town& town : gazetteer.towns)
        centres.push_back(book.claim(town.place, town, kilometre));
    for (int i = 0; i < static_cast<int>(centres.size()); ++i) {
        placeDistricts(i, centres[static_cast<std::size_t>(i)], gazetteer, book, seeds);
        const Town& town = gazetteer.towns[static_cast<std::size_t>(i)];
        seeds.exchanges.push_back({town.name, centres[static_cast<std::size_t>(i)], i, town.people});
    }
    seeds.places = book.takePlaces();
    return seeds;
}

} // namespace sample
