#pragma once

#include <memory>
#include <string>

class cPathControl;
class cColours_CS;
class Database;
class Recordset;

/// The global state of the program. Everything runs on one thread; procedures read and write these names directly.
/// Texts are UTF-8.

extern std::string gsVersion;                        ///< "<major>.<minor, 2 digits>.<revision, 4 digits>"
extern std::shared_ptr<cPathControl> gPaths;         ///< folders of the installation; lives as long as the process
extern std::shared_ptr<cColours_CS> gColours;        ///< colour scheme; null where no windows are shown
extern std::string gsFontName;                       ///< face name of the interface font
extern std::shared_ptr<Database> gdbSystem;          ///< system map database, ukmap.mdb
extern std::string gsSystemDBPath;                   ///< its full path
extern std::shared_ptr<Database> gdbProject;         ///< the open project; closed and reopened several times
extern std::string gsProjectPath;                    ///< full path of the project; empty: no project is open
extern std::string gsProjectPassword;                ///< the password with which the project opened
extern std::shared_ptr<Database> gdbCustomerGroups;  ///< CustomerGroups.mdb
extern std::shared_ptr<Database> gdbCommunityGroups; ///< comgroups.mdb; opened, never read
extern std::string gsAccount;                        ///< TallyAccount of the open project
extern std::shared_ptr<Recordset> grsData1; ///< shared recordset slot; nothing survives in it between user actions
extern std::shared_ptr<Recordset> grsData2; ///< shared recordset slot
extern std::shared_ptr<Recordset> grsData3; ///< shared recordset slot
extern std::string gsCurrentProc;           ///< name of the running procedure, "<object>_<procedure>"
extern std::string gsBoundaryType;          ///< "Exchange", "CSG", "TVRegion", "PostcodeDistrict", "CustomerGroups"
extern bool gbReportLogo;                   ///< OstelReportLogo.jpg exists in SystemDataPath
extern bool gbTVPopulation;                 ///< tblTVPopulationDensity has rows
extern bool gbPostCodePopulation;           ///< tblPostCodePopulationDensity has rows
extern double gcCampaignSpend;              ///< campaign spend of the project, pounds, four decimals

/// The selection that the statistics statements paste behind WHERE or AND; empty means all calls of the project.
extern std::string SelectionSql;

/// Puts every global above back to its state at process start and releases what they hold. For tests.
void resetGlobals();
