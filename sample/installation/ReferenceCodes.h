#pragma once

#include "sample/geography/Geography.h"

#include <string>
#include <vector>

namespace sample {

/// What a value of [1141] says of a caller.
enum class CallerKind { Geographic, Ireland, Overseas, Mobile, Voip, Withheld, OtherNetwork, Untraceable };

/// One row of the mapping from codes to areas, with what the makers of calls need beside it.
struct ReferenceCode {
    std::string code; ///< value of [1141]: at most ten characters
    CallerKind kind = CallerKind::Geographic;
    std::string exchange;
    std::string csg; ///< a number for a real area, "0" overseas, otherwise the area's name
    std::string dmsu;
    std::string postCode;
    std::string tvArea;
    std::string callingPrefix; ///< the first digits of every number of this code
    int furtherDigits = 0;     ///< how many follow, at most nine; 0: the number is not known, and the prefix is empty
    double weight = 0;         ///< share of the callers of its kind; the kind's codes together give 1
    int geographyCode = -1;    ///< index into Geography::codes, of a geographic code
};

/// The numbers under which CSGs are known. They go by the most populous dialling code of each, so that they follow the
/// map; the name of the last area, which has no callers, stays a name.
std::vector<std::string> numberCsgs(const Geography& geography);

/// Every code: those of the geography in their order, then the Republic of Ireland, other countries, and the values
/// for callers without a place.
std::vector<ReferenceCode> makeReferenceCodes(const Geography& geography);

} // namespace sample
