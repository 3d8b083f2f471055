#include "data/project/SetPopulationFlags.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"

void SetPopulationFlags() {
    gsCurrentProc = "ModUtilities_SetPopulationFlags";
    logAndGoOn([] {
        gbTVPopulation = countOf(systemDatabase(), "SELECT COUNT(*) AS RowCount FROM tblTVPopulationDensity") > 0;
    });
    logAndGoOn([] {
        gbPostCodePopulation =
            countOf(systemDatabase(), "SELECT COUNT(*) AS RowCount FROM tblPostCodePopulationDensity") > 0;
    });
}
