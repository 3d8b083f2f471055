#include "core/ModDeclarations.h"

std::string gsVersion;
std::shared_ptr<cPathControl> gPaths;
std::shared_ptr<cColours_CS> gColours;
std::string gsFontName = "Calibri";
std::shared_ptr<Database> gdbSystem;
std::string gsSystemDBPath;
std::shared_ptr<Database> gdbProject;
std::string gsProjectPath;
std::string gsProjectPassword;
std::shared_ptr<Database> gdbCustomerGroups;
std::shared_ptr<Database> gdbCommunityGroups;
std::string gsAccount;
std::shared_ptr<Recordset> grsData1;
std::shared_ptr<Recordset> grsData2;
std::shared_ptr<Recordset> grsData3;
std::string gsCurrentProc;
std::string gsBoundaryType;
bool gbReportLogo = false;
bool gbTVPopulation = false;
bool gbPostCodePopulation = false;
double gcCampaignSpend = 0.0;
std::string SelectionSql;

namespace {

/// Recordsets go before the databases that they came from.
void releaseHandles() {
    grsData1.reset();
    grsData2.reset();
    grsData3.reset();
    gdbProject.reset();
    gdbCustomerGroups.reset();
    gdbCommunityGroups.reset();
    gdbSystem.reset();
    gColours.reset();
    gPaths.reset();
}

} // namespace

void resetGlobals() {
    releaseHandles();
    for (std::string* text : {&gsVersion, &gsSystemDBPath, &gsProjectPath, &gsProjectPassword, &gsAccount,
                              &gsCurrentProc, &gsBoundaryType, &SelectionSql})
        text->clear();
    gsFontName = "Calibri";
    gbReportLogo = gbTVPopulation = gbPostCodePopulation = false;
    gcCampaignSpend = 0.0;
}
