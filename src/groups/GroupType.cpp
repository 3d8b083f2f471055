#include "groups/GroupType.h"

namespace {

constexpr GroupType postcodeDistricts{"PGN_POSTCODEDISTRICT", "TblPostCodeDistrict", "PostCodeDistrict"};
constexpr GroupType csgs{"PGN_CSG", "TblCSG", "CSG"};
constexpr GroupType tvRegions{"PGN_TV", "TblTV", "TVRegion"};

} // namespace

const GroupType& groupTypeOf(long DataType) {
    return DataType == 3 ? postcodeDistricts : DataType == 1 ? csgs : tvRegions;
}

int joinedByOf(long DataType) {
    return DataType == 2 ? 4 : DataType == 1 ? 1 : 3;
}
