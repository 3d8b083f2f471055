#include "sample/installation/SystemMapFile.h"

#include "data/engine/Database.h"
#include "data/engine/Workspace.h"
#include "data/schema/Vocabulary.h"
#include "sample/installation/InstallationFacts.h"
#include "sample/installation/RowWriter.h"
#include "sample/installation/ShapeTables.h"

#include <cmath>

namespace sample {

namespace {

void createTables(Database& map) {
    for (const VocabularyTable& table : tableVocabulary()) {
        if (table.database == DatabaseKind::SystemMap && table.origin != TableOrigin::Working)
            map.tableDefs().append(table.definition);
    }
}

void writeShapes(Database& map, const Geography& geography) {
    const std::vector<std::string> csgNumbers = numberCsgs(geography);
    std::vector<Area> csgs = geography.csgs;
    for (std::size_t i = 0; i < csgs.size(); ++i)
        csgs[i].name = csgNumbers[i];

    writeCoverage(map, "TV", "TVNAMES", geography.tvRegions);
    writePolygons(map, "PGN_TVREGIONS", geography.tvRegions);
    writeCoverage(map, "CSG", "CSGNAMES", csgs);
    writeCoverage(map, "POSTCODEDISTRICT", "POSTCODEDISTRICTNAMES", geography.postcodeDistricts);
    writeCoverage(map, "EXCHANGEAREA", "EXCHANGEAREANAMES", geography.exchangeAreas, geography.exchangePrefix);
    writeCoverage(map, "BORDERS", "BORDERNAMES", geography.borders);
    writeEmptyCoverage(map, "GROUPS");
}

/// People of each area, by the shares that its codes have of them. An area without people has no row.
void writePopulation(Database& map, std::string_view table, std::span<const Area> areas, const Geography& geography,
                     int CallCode::*areaOf) {
    constexpr double unitedKingdom = 68'300'000;
    std::vector<double> share(areas.size());
    for (const CallCode& code : geography.codes)
        share[static_cast<std::size_t>(code.*areaOf)] += code.weight;
    RowWriter rows(map, table);
    for (std::size_t i = 0; i < areas.size(); ++i) {
        if (const double people = std::round(share[i] * unitedKingdom); people > 0)
            rows.add({areas[i].name, people});
    }
}

void writeHousekeeping(Database& map) {
    RowWriter versions(map, "TblVersion");
    versions.add({Money{2'0000}});
    versions.add({mapVersion});
    RowWriter(map, "TblSettings").add({boundaryDate()});
    // No project stands in the statistics tables yet.
    map.execute("INSERT INTO TblDataCapture (Overnight) VALUES (0)");
}

} // namespace

void writeSystemMap(Workspace& workspace, const std::string& path, const Geography& geography,
                    std::span<const ReferenceCode> codes) {
    const auto map = workspace.createDatabase(path, SystemMapConnect);
    WorkspaceTransaction transaction(workspace);
    createTables(*map);
    writeShapes(*map, geography);
    for (const char* table : {"TblLookup1141", "TblReference1141"})
        writeCodes(*map, table, codes);
    writePopulation(*map, "tblTVPopulationDensity", geography.tvRegions, geography, &CallCode::tvRegion);
    writePopulation(*map, "tblPostCodePopulationDensity", geography.postcodeDistricts, geography,
                    &CallCode::postcodeDistrict);
    writeHousekeeping(*map);
    transaction.commit();
}

void linkCustomerGroups(Workspace& workspace, const std::string& systemMapPath, const std::string& customerGroupsPath) {
    const auto map = workspace.openDatabase(systemMapPath, Workspace::Access::Shared, SystemMapConnect);
    WorkspaceTransaction transaction(workspace);
    for (const char* table : {"TblGroup", "TblName", "tblMappingGroupSetup"}) {
        TableDef link;
        link.name = std::string(table) + "_Link";
        link.sourceTableName = std::string_view(table) == "TblGroup" ? "TblGroups" : table;
        link.connect = "MS Access;DATABASE=" + customerGroupsPath;
        map->tableDefs().append(link);
    }
    transaction.commit();
}

} // namespace sample
