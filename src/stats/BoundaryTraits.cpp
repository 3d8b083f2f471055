#include "stats/BoundaryTraits.h"

#include "data/types/Value.h"

const BoundaryTraits tvRegions{
    .mainTable = "TblTV",
    .areaColumn = "TVRegion",
    .dataColumn = "TVArea",
    .overseasTest = " LIKE '.*'",
    .specialRowTables = {"TblTV", "TblSelectedDataForTV", "TblAnimatedTV1", "TblAnimatedTV2"},
    .texts = {.areas = "Updating TV Areas...",
              .cost = "Updating Total Cost By TV Area Statistics...",
              .revenue = "Updating Total Revenue By TV Area Statistics...",
              .answeredCallers = "Updating Answered Callers By TV Area Statistics...",
              .lostCallers = "Updating Lost Callers By TV Area Statistics...",
              .sidePanels = "Updating 'Other', 'International', 'Mobile' Statistics..."}};

const BoundaryTraits callingSubscriberGeographies{.mainTable = "TblCSG",
                                                  .areaColumn = "CSG",
                                                  .dataColumn = "CSG",
                                                  .overseasTest = " = '0'",
                                                  .specialRowTables = {"TblCSG", "TblSelectedDataForCSG"},
                                                  .texts = {}};

const BoundaryTraits exchanges{.mainTable = "TblExchangeArea",
                               .areaColumn = "Exchange",
                               .dataColumn = "Exchange",
                               .overseasTest = " LIKE '.*'",
                               .specialRowTables = {"TblSelectedDataForExchangeArea"},
                               .texts = {}};

const BoundaryTraits postcodeDistricts{.mainTable = "TblPostCodeDistrict",
                                       .areaColumn = "PostcodeDistrict",
                                       .dataColumn = "Postcode",
                                       .overseasTest = " LIKE '.*'",
                                       .specialRowTables = {"TblSelectedDataForPostCodeDistrict",
                                                            "TblAnimatedPostCodeDistrict1",
                                                            "TblAnimatedPostCodeDistrict2"},
                                       .texts = {}};

const BoundaryTraits* boundaryOfSpecialRows(std::string_view table) {
    for (const BoundaryTraits* boundary : {&tvRegions, &callingSubscriberGeographies, &exchanges, &postcodeDistricts}) {
        for (const std::string_view name : boundary->specialRowTables) {
            if (!name.empty() && equalText(table, name))
                return boundary;
        }
    }
    return nullptr;
}
