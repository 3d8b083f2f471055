#pragma once

#include "sample/geography/Coast.h"
#include "sample/geography/Nations.h"

#include <string>
#include <vector>

namespace sample {

struct Town {
    std::string name;
    MapPoint place; ///< on land
    int ring = 0;   ///< of the coast
    Nation nation = Nation::England;
    std::vector<std::string> districts; ///< those that are named after it, the centre first; may be empty
    std::string dialling;               ///< without the leading 0
    std::string region;                 ///< TV region
    double people = 0;
};

/// A place that gives its name to a CSG.
struct CsgTown {
    std::string name;
    MapPoint place;
    int ring = 0;
    Nation nation = Nation::England;
};

struct Gazetteer {
    std::vector<Town> towns;
    std::vector<CsgTown> csgs;
    std::vector<std::string> regions; ///< names of the TV regions, in alphabetical order
};

/// Reads the compiled-in lists. Throws std::runtime_error that names file and line where one is damaged, where a
/// district is listed twice or a town stands in the sea.
Gazetteer readGazetteer(const Coast& coast, const Nations& nations);

} // namespace sample
