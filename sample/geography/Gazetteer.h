#pragma once

#include "sample/geography/Coast.h"
#include "sample/geography/Nations.h"

#include <string>
#include <vector>

namespace sample {

/// A town, or a part of a city, with an exchange of its own.
struct Town {
    std::string name; ///< in capitals; a qualifier may follow in brackets: "ASHFORD (Kent)"
    MapPoint place;   ///< on land
    int ring = 0;     ///< of the coast
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

/// Reads the compiled-in lists. Names lose their apostrophes, which would break the statements that look for them.
/// Throws std::runtime_error that names file and line where a list is damaged, where a name or a district is listed
/// twice or a town stands in the sea.
Gazetteer readGazetteer(const Coast& coast, const Nations& nations);

} // namespace sample
