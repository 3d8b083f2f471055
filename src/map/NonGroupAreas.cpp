// What lies below the customer groups: the areas that belong to none, and Ireland.
#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/engine/Database.h"
#include "map/MapMeasures.h"
#include "map/SystemMapSource.h"
#include "map/ThematicMap.h"
#include "map/surface/MapSurface.h"

namespace {

constexpr double LabelSize = 12.0;
constexpr MapColourCode White = 0xFFFFFF;
constexpr long AverageCalls = 8; ///< the one measure that groups do not have
constexpr int Csgs = 1;
constexpr int TvRegions = 2;
constexpr int PostcodeDistricts = 3;

/// What the account's groups are made of; postcode districts where nobody has said.
int groupBaseGeography() {
    int geography = PostcodeDistricts;
    grsData1 = gdbSystem->openRecordset("SELECT DataType FROM tblMappingGroupSetup_Link WHERE TallyAccount = '" +
                                        gsAccount + "'");
    if (!grsData1->EOF_() && !grsData1->value(0).isNull())
        geography = grsData1->value(0).asLong();
    grsData1->Close();
    return geography == PostcodeDistricts || geography == Csgs ? geography : TvRegions;
}

} // namespace

void ThematicMap::FrmMap_DisplayNonGroupAreas(long mapType, int dataSet) {
    gsCurrentProc = "FrmMap_DisplayNonGroupAreas";
    form_.groupBaseGeography = PostcodeDistricts;
    logAndGoOn([&] { form_.groupBaseGeography = groupBaseGeography(); });
    const Boundary& base = baseBoundary();
    const std::string table(base.defaultTable);
    *tables_.of(base.code) = table;

    const std::string shape(base.shapeTable);
    const std::string name = shape + "." + std::string(base.nameColumn);
    const std::string key = table + "." + std::string(base.keyColumn);
    const std::string column = mapType == AverageCalls ? std::string() : statisticsColumn(mapType, dataSet);

    addGeographyLayer("Non Group Geography", base);
    Layer& layer = surface_.layer();
    layer.LayerJoins = shape + "," + table + ", TblGroup_Link WHERE TRIM(" + name + ") = TRIM(" + key + ") AND " + key +
                       " = tblGroup_Link.reference AND (tblGroup_Link.Groupname = '' OR tblGroup_Link.groupname IS "
                       "Null) AND (TBLGROUP_LINK.TALLYACCOUNT = '" +
                       gsAccount + "')";
    layer.LayerFields = name + ", " + key + (column.empty() ? "" : ", " + table + "." + column);
    layer.LayerLabelSource = name;
    layer.LayerCheckForOverlap = true;
    layer.LayerVisible = true;
    FrmMap_AddIreland();
}

void ThematicMap::FrmMap_AddIreland() {
    gsCurrentProc = "FrmMap_AddIreland";
    const Boundary& base = baseBoundary();
    const std::string shape(base.shapeTable);

    addGeographyLayer("Republic Of Ireland", base);
    Layer& layer = surface_.layer();
    layer.LayerJoins = shape + " WHERE " + shape + ".Name =  'Republic Of Ireland'";
    layer.LayerLabelSource = shape + ".Name";
    layer.LayerCheckForOverlap = false;
    Symbol& symbol = surface_.symbol();
    symbol.SymbolLabelFont = {gsFontName, LabelSize};
    symbol.SymbolLabelColor = White;
    symbol.SymbolLabelJustification = LabelJustification::Right;
    symbol.SymbolLabelBaseline = LabelBaseline::Middle;
    form_.layerCount = surface_.NumberOfLayers();
}

const Boundary& ThematicMap::baseBoundary() const {
    const int geography = form_.groupBaseGeography; // carries the code of its boundary
    return *findBoundary(geography == PostcodeDistricts || geography == Csgs ? geography : TvRegions);
}

/// Appends a layer of unfilled areas, which show as white land, and makes it current.
void ThematicMap::addGeographyLayer(const std::string& name, const Boundary& base) {
    surface_.AddLayer();
    surface_.setLayerIndex(surface_.NumberOfLayers() - 1);
    Layer& layer = surface_.layer();
    layer.LayerName = name;
    layer.LayerSourceType = 1;
    layer.LayerDataSource = systemMapSource();
    layer.LayerCoverageName = base.coverage;
    layer.LayerInterpretation = CoverageKind::Polygons;
    layer.LayerShownInKey = false;
    Symbol& symbol = surface_.symbol();
    symbol.SymbolEnableLabels = false;
    symbol.SymbolFilled = false;
    symbol.SymbolPolygonColor = White;
}
