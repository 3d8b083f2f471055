#include "data/project/UpdateMappingGISTable.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/project/BoundaryDate.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"

namespace {

/// What a project counts as that has never taken a geography: older than the date of any system, also one without a
/// date, which counts as day zero.
const Date beforeAnyGeography = dateOf({.year = 1800, .month = 1, .day = 1});

/// Makes TblSettings where it is missing.
int ensureSettings(Database& database) {
    database.tableDefs().refresh();
    return database.tableDefs().find("TblSettings") ? 0 : CreateSettingsTable(database);
}

/// The stored date, or nothing where the table has no row, or none in it.
std::optional<Date> storedDate(Database& database) {
    const auto value = firstValue(database, "SELECT BoundaryDate FROM TblSettings");
    if (!value)
        return std::nullopt;
    return value->isNull() ? Date{} : value->asDate();
}

void insertDate(Database& database, Date date) {
    database.execute("INSERT INTO TblSettings (BoundaryDate) VALUES ('" + boundaryDateText(date) + "')");
}

/// A system without a date is given today's, but counts as undated for this once.
Date systemGeographyDate(Database& system) {
    if (const auto stored = storedDate(system))
        return *stored;
    insertDate(system, today());
    return Date{};
}

Date projectGeographyDate(Database& project) {
    if (const auto stored = storedDate(project))
        return *stored;
    insertDate(project, beforeAnyGeography);
    return beforeAnyGeography;
}

/// Exchanges that share a name are told apart by a qualifier in brackets on the map; the project's names are brought to
/// those, by the code prefix of the exchange.
void qualifyExchangeNames(Database& system, const Database& project) {
    ignoreErrors([&] { system.execute("DROP TABLE TblGIS_Link"); });
    TableDef link = system.createTableDef("TblGIS_Link");
    link.connect = projectLinkConnect(project);
    link.sourceTableName = "TblMappingGIS";
    system.tableDefs().append(link);
    system.execute("UPDATE TblGIS_Link INNER JOIN PGN_EXCHANGEAREA ON [TblGIS_Link].[1141] Like "
                   "[PGN_EXCHANGEAREA].[GROUP_1141] & '*' SET TblGIS_Link.Exchange = [PGN_EXCHANGEAREA].[Name] "
                   "WHERE [PGN_EXCHANGEAREA].[name] Like '*(*)*'");
}

void takeGeography(Database& system, Database& project) {
    WorkspaceTransaction upkeep(*project.workspace());
    dropTable(project, "TblMappingGIS");
    project.execute("SELECT TblGIS.* INTO TblMappingGIS FROM TblGIS");
    qualifyExchangeNames(system, project);
    project.execute("UPDATE TblSettings SET BoundaryDate = '" + boundaryDateText(today()) + "'");
    upkeep.commit();
}

} // namespace

int ModUtilities_UpdateMappingGISTable(Database& project) {
    gsCurrentProc = "ModUtilities_UpdateMappingGISTable";
    int result = -1;
    logAndGoOn([&] {
        Database& system = systemDatabase();
        if (ensureSettings(system) != 0)
            return;
        const Date systemDate = systemGeographyDate(system);
        if (ensureSettings(project) != 0)
            return;
        const Date projectDate = projectGeographyDate(project);
        if (systemDate.days > projectDate.days)
            takeGeography(system, project);
        result = 0;
    });
    return result;
}
