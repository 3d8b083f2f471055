#include "map/Boundaries.h"

#include <array>

namespace {

constexpr std::array Table{
    Boundary{0, "Exchange Locations", "Exchange", "CCL_EXCHANGEAREA", "PGN_EXCHANGEAREA", "NAME", "Exchange",
             "TblExchangeArea", "CCL_ExchangeAreaNAMES", "PNT_ExchangeAreaNAMES.NAME", true},
    Boundary{1, "CSG's", "CSG", "CCL_CSG", "PGN_CSG", "NAME", "CSG", "TblCSG", "CCL_CSGNAMES", "PNT_CSGNAMES.NAME",
             false},
    Boundary{2, "TV Regions", "TVRegion", "CCL_TV", "PGN_TV", "NAME", "TVRegion", "TblTV", "CCL_TVNAMES",
             "PNT_TVNAMES.NAME", true},
    Boundary{3, "Post Code Districts", "PostcodeDistrict", "CCL_POSTCODEDISTRICT", "PGN_POSTCODEDISTRICT", "NAME",
             "PostCodeDistrict", "TblPostCodeDistrict", "CCL_PostCodeDistrictNAMES", "PNT_PostCodeDistrictNAMES.NAME",
             true},
    Boundary{5, "Customer Groups", "CustomerGroups", "CCL_GROUPS", "PGN_GROUPS", "GROUPNAME", "GroupName",
             "TblCustomerGroups", "CCL_Groups", "PNT_GROUPS.NAME", false},
};

} // namespace

std::span<const Boundary> boundaries() {
    return Table;
}

const Boundary* findBoundary(long code) {
    for (const Boundary& boundary : Table) {
        if (boundary.code == code)
            return &boundary;
    }
    return nullptr;
}
