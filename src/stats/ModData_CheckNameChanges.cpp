#include "stats/ModData_CheckNameChanges.h"

#include "stats/NameReconciliation.h"

namespace {

constexpr ReconciledNames tvNames{.procedure = "ModData_CheckTVNameChanges",
                                  .column = "TVArea",
                                  .comparedWidth = 20,
                                  .resultField = "GIS_TVArea",
                                  .polygonTable = "PGN_TV",
                                  .labelTable = "PNT_TVNAMES",
                                  .statisticsTable = "tblTV",
                                  .statisticsColumn = "TVRegion",
                                  .notNames = "DELETE FROM TblTemp1 WHERE UCASE(TVArea) LIKE '.*'",
                                  .groupDataType = 2};

constexpr ReconciledNames exchangeNames{.procedure = "ModData_CheckExchangeNameChanges",
                                        .column = "Exchange",
                                        .comparedWidth = 50,
                                        .resultField = "GIS_Exchange",
                                        .polygonTable = "PGN_EXCHANGEAREA",
                                        .labelTable = "PNT_EXCHANGEAREANAMES",
                                        .renameByCode = true};

constexpr ReconciledNames postcodeNames{.procedure = "ModData_CheckPostCodeNameChanges",
                                        .column = "PostCode",
                                        .comparedWidth = 20,
                                        .resultField = "GIS_PostCode",
                                        .polygonTable = "PGN_POSTCODEDISTRICT",
                                        .labelTable = "PNT_POSTCODEDISTRICTNAMES",
                                        .statisticsTable = "tblPostcodeDistrict",
                                        .statisticsColumn = "PostCodeDistrict",
                                        .notNames = "DELETE FROM TblTemp1 WHERE PostCode LIKE '.*'",
                                        .groupDataType = 3};

} // namespace

int ModData_CheckTVNameChanges() {
    return reconcileNames(tvNames);
}
int ModData_CheckExchangeNameChanges() {
    return reconcileNames(exchangeNames);
}
int ModData_CheckPostCodeNameChanges() {
    return reconcileNames(postcodeNames);
}
