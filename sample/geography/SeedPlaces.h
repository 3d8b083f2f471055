#pragma once

#include "sample/geography/Gazetteer.h"
#include "sample/geography/SeededRandom.h"

#include <string>
#include <vector>

namespace sample {

/// A postcode district or an exchange area before it has a shape: the place from which it grows.
struct SeedArea {
    std::string name;
    int place = 0; ///< index into Seeds::places
    int town = 0;  ///< index into Gazetteer::towns
    double people = 0;
};

struct Seeds {
    std::vector<MapPoint> places; ///< all different and a little apart
    std::vector<SeedArea> districts;
    std::vector<SeedArea> exchanges;
};

/// Spreads the districts of each town round it, the first in its centre, where its exchange is too. All stand on the
/// town's own island and in its nation.
Seeds placeSeeds(const Gazetteer& gazetteer, const Coast& coast, const Nations& nations, std::uint64_t seed);

} // namespace sample
