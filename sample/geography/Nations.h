#pragma once

#include "sample/geography/Coast.h"

#include <array>
#include <string_view>
#include <vector>

namespace sample {

/// In the order of Geography::borders, which ends with the Republic as every boundary does.
enum class Nation { England, Scotland, Wales, NorthernIreland, IsleOfMan, ChannelIslands, RepublicOfIreland };

inline constexpr std::array<std::string_view, 7> nationNames{
    "England", "Scotland", "Wales", "Northern Ireland", "Isle Of Man", "Channel Islands", republicOfIreland};

/// Tells the nation of a place. No area of any boundary reaches over the line between two nations.
class Nations {
public:
    explicit Nations(const Coast& coast);

    /// The nation of a place on the given ring of the coast.
    Nation at(int ring, MapPoint place) const;

private:
    struct Outline {
        Nation nation;
        std::vector<MapPoint> ring;
    };

    const Coast& coast_;
    std::vector<Outline> outlines_;
};

} // namespace sample
