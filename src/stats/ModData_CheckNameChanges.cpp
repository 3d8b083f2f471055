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
                                  .groupDataType = 2,
                                  .renameByCode = false};

} // namespace

void ModData_CheckTVNameChanges() {
    reconcileNames(tvNames);
}
