#include "data/schema/VocabularyBuilder.h"

namespace vocabulary {

namespace {

constexpr auto SystemMap = DatabaseKind::SystemMap;
constexpr auto Delivered = TableOrigin::Delivered;
constexpr auto MadeHere = TableOrigin::MadeHere;
constexpr auto Working = TableOrigin::Working;

Fields areaPolygonFields() {
    return join({{text("Name", 50)}, polygonFields()});
}

Fields labelPointFields() {
    return {text("Name", 50), longInteger("PointID"), real("XCoord"), real("YCoord")};
}

/// The catalogue row of a coverage: which table holds its shapes, of what kind they are and the box that they fill.
Fields coverageFields() {
    return {text("Coverage", 50), text("ShapeTable", 64), text("ShapeKind", 10), longInteger("ShapeCount"),
            real("BoundLowX"),    real("BoundLowY"),      real("BoundUppX"),     real("BoundUppY")};
}

Fields populationFields() {
    return {text("Reference", 40), real("Population")};
}

Tables shapeTables() {
    Tables tables;
    for (const char* name : {"PGN_TV", "PGN_TVREGIONS", "PGN_CSG", "PGN_POSTCODEDISTRICT", "PGN_BORDERS", "PGN_TEMP"})
        tables.push_back(table(SystemMap, Delivered, name, areaPolygonFields()));
    tables.push_back(
        table(SystemMap, Delivered, "PGN_EXCHANGEAREA", join({areaPolygonFields(), {text("GROUP_1141", 10)}})));
    tables.push_back(table(SystemMap, Delivered, "PGN_GROUPS", groupPolygonFields()));
    for (const char* name :
         {"PNT_TVNAMES", "PNT_CSGNAMES", "PNT_POSTCODEDISTRICTNAMES", "PNT_EXCHANGEAREANAMES", "PNT_BORDERNAMES"})
        tables.push_back(table(SystemMap, Delivered, name, labelPointFields()));
    tables.push_back(table(SystemMap, Delivered, "PNT_GROUPS", groupLabelFields()));
    for (const char* name :
         {"CCL_TV", "CCL_CSG", "CCL_POSTCODEDISTRICT", "CCL_EXCHANGEAREA", "CCL_GROUPS", "CCL_BORDERS", "CCL_TVNAMES",
          "CCL_CSGNAMES", "CCL_POSTCODEDISTRICTNAMES", "CCL_EXCHANGEAREANAMES", "CCL_BORDERNAMES"})
        tables.push_back(table(SystemMap, Delivered, name, coverageFields()));
    return tables;
}

Tables populationTables() {
    return {
        table(SystemMap, MadeHere, "tblTVPopulationDensity", populationFields()),
        table(SystemMap, MadeHere, "tblPostCodePopulationDensity", populationFields()),
        table(SystemMap, MadeHere, "tblTVPopulationDensity_Temp", populationFields()),
        table(SystemMap, MadeHere, "tblPostCodePopulationDensity_Temp", populationFields()),
    };
}

/// The row that tells whose figures the statistics tables hold, with what the last runs were asked for.
Fields systemDataCaptureFields() {
    return join(
        {dataCaptureFields(text),
         {text("BoundaryType1", 20), text("BoundaryType2", 20), integer("Overnight"), text("ProjectMultiMap", 250),
          integer("MultiMaps"), text("ProjectAnimate", 250), text("BoundaryTypeAnimate", 20), integer("Animations")}});
}

Tables housekeepingTables() {
    return {
        table(SystemMap, Delivered, "TblLookup1141", geographyFields()),
        table(SystemMap, Delivered, "TblReference1141", geographyFields()),
        table(SystemMap, Delivered, "TblVersion", {money("Version")}),
        table(SystemMap, MadeHere, "TblSettings", {date("BoundaryDate")}),
        table(SystemMap, Delivered, "TblDataCapture", systemDataCaptureFields()),
    };
}

/// The tables in which the group editor works, and a scratch table of the name reconciliation.
Tables editorTables() {
    return {
        table(SystemMap, Delivered, "tblTempGroups",
              {text("TallyAccount", 50), text("Reference", 50), text("GroupName", 50)}),
        table(SystemMap, Delivered, "TblTempName", groupNameFields()),
        table(SystemMap, Delivered, "tblGroupChange", {boolean("Status")}),
        table(SystemMap, Working, "TblGroup_LabelName_Temp", groupFields()),
        table(SystemMap, Working, "TblTemp1", {text("PostCode", 50)}),
    };
}

} // namespace

Tables systemMapTables() {
    Tables tables;
    for (const auto& part :
         {shapeTables(), statisticsTables(), populationTables(), housekeepingTables(), editorTables()})
        tables.insert(tables.end(), part.begin(), part.end());
    return tables;
}

} // namespace vocabulary
