#include "groups/editor/GroupMap.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "groups/GroupType.h"
#include "groups/editor/GroupEditor.h"
#include "map/Boundaries.h"
#include "map/SystemMapSource.h"
#include "map/WholeMap.h"
#include "map/surface/MapSurface.h"

namespace {

constexpr long csgs = 1, tvRegions = 2, postcodeDistricts = 3; // of groups and of boundaries alike
constexpr double labelSize = 12.0;
constexpr MapColourCode white = 0xFFFFFF;
constexpr int namesShownUpTo = 23831; ///< width of the view, map units

} // namespace

GroupMap::GroupMap(MapSurface& MapSurface1, GroupEditor& editor) : surface_(MapSurface1), editor_(editor) {}

const std::string& GroupMap::toolBarSetup() {
    static const std::string setup =
        ":BUTTON_VISIBLE:1,1,1,1,0,1,1,0,0,0,0,0,0,0,:TOOLTIPS:Zoom Extent,Pan,Zoom In,Zoom Out,Measure,Select a "
        "single Region,Select Regions by drawing around them,Circle Query,Draw Point,Draw Polyline,Draw Polygon,Draw "
        "Circle,Hide Toolbar,Go Back,";
    return setup;
}

const Boundary& GroupMap::boundary() const {
    const long type = editor_.DataType;
    return *findBoundary(type == postcodeDistricts || type == csgs ? type : tvRegions);
}

void GroupMap::CreateMap() {
    if (building_)
        return;
    building_ = true;
    const CurrentProcedure procedure("frmGroups_CreateMap");
    deleteLayers();
    editor_.decideType();
    fillBaseLayer();
    if (!whole_) {
        whole_ = ignoreErrors([&] { surface_.ZoomToExtent(); });
        wholeScale_ = surface_.MapScale();
    }
    DisplayGroups();
    AddIreland();
    AddLabelLayer();
    surface_.setLayerIndex(0);
    logAndGoOn([&] { surface_.DrawMap(); });
    building_ = false;
}

void GroupMap::ClearMap() {
    surface_.setSymbolIndex(0);
    while (surface_.NumberOfSymbols() > 1)
        surface_.DeleteSymbol();
}

void GroupMap::fillBaseLayer() {
    const Boundary& areas = boundary();
    const GroupType& type = groupTypeOf(editor_.DataType);
    const std::string name = std::string(areas.coverage) + ".NAME";
    const std::string table(type.referenceTable), key = table + "." + std::string(type.referenceColumn);

    surface_.setLayerIndex(0);
    surface_.CloseLayerSource(0);
    ClearMap();
    Layer& layer = describeLayer("Basic Geography");
    layer.LayerJoins =
        "," + table + " WHERE Left(" + name + ", 20) = " + key + " AND " + key + " <> 'Republic Of Ireland'";
    layer.LayerLabelSource = name;
    layer.LayerCheckForOverlap = true;
    surface_.symbol().SymbolLabelFont = {gsFontName, labelSize};
}

/// Of the current layer, with what all layers have in common.
Layer& GroupMap::describeLayer(const std::string& name) {
    surface_.KeepDataSourcesOpen = false;
    Layer& layer = surface_.layer();
    layer.LayerName = name;
    layer.LayerSourceType = 1;
    layer.LayerDataSource = systemMapSource();
    layer.LayerCoverageName = boundary().coverage;
    layer.LayerInterpretation = CoverageKind::Polygons;
    layer.LayerShownInKey = false;
    layer.LayerVisible = true;
    Symbol& symbol = surface_.symbol();
    symbol.SymbolPolygonColor = white;
    symbol.SymbolFilled = true;
    symbol.SymbolEnableLabels = false;
    return layer;
}

Layer& GroupMap::addLayer(const std::string& name) {
    surface_.AddLayer();
    surface_.setLayerIndex(surface_.NumberOfLayers() - 1);
    ++groupLayerCount_;
    return describeLayer(name);
}

void GroupMap::deleteLayers() {
    logAndGoOn([&] { deleteUpperLayers(surface_); });
    groupLayerCount_ = 0;
}

void GroupMap::DisplayGroups() {
    const CurrentProcedure procedure("frmGroups_DisplayGroups");
    deleteLayers();
    const std::string name = std::string(boundary().coverage) + ".NAME";
    Layer& layer = addLayer("Groups");
    layer.LayerJoins = ",tblTempGroups WHERE " + name +
                       " = tblTempGroups.Reference AND TblTempGroups.GroupName IS NOT NULL AND "
                       "TblTempGroups.GroupName <> ''";
    layer.LayerSymbolExpression = "tblTempGroups.GroupName";
    layer.LayerLinkType = SymbolLink::Text;
    // The first symbol stays white: it is that of members whose group is not in the list.
    for (const EditedGroup& group : editor_.groups()) {
        surface_.AddSymbol();
        surface_.setSymbolIndex(surface_.NumberOfSymbols() - 1);
        Symbol& symbol = surface_.symbol();
        symbol.SymbolName = symbol.SymbolStringEquals = group.name;
        symbol.SymbolPolygonColor = swapRedAndBlue(group.colour);
        symbol.SymbolFilled = true;
    }
}

void GroupMap::AddIreland() {
    const CurrentProcedure procedure("frmGroups_AddIreland");
    Layer& layer = addLayer("Republic Of Ireland");
    layer.LayerJoins = " WHERE " + std::string(boundary().coverage) + ".NAME = 'Republic Of Ireland'";
    Symbol& symbol = surface_.symbol();
    symbol.SymbolLabelFont = {gsFontName, labelSize};
    symbol.SymbolLabelColor = white;
    symbol.SymbolLabelJustification = LabelJustification::Right;
    symbol.SymbolLabelBaseline = LabelBaseline::Middle;
}

void GroupMap::AddLabelLayer() {
    const CurrentProcedure procedure("frmGroups_AddLabelLayer");
    const Boundary& areas = boundary();
    Layer& layer = addLayer("Map Labels");
    layer.LayerCoverageName = areas.labelCoverage;
    layer.LayerInterpretation = CoverageKind::LabelPoints;
    layer.LayerLabelSource = areas.labelSource;
    layer.LayerCheckForOverlap = true;
    layer.LayerFromZoomTrigger = 0;
    layer.LayerToZoomTrigger = namesShownUpTo;
    Symbol& symbol = surface_.symbol();
    symbol.SymbolPointSymbol = "No Symbol";
    symbol.SymbolPointColor = 0;
    symbol.SymbolLabelFont = {gsFontName, labelSize};
    symbol.SymbolLabelColor = 0;
    symbol.SymbolLabelJustification = LabelJustification::Centre;
    symbol.SymbolLabelBaseline = LabelBaseline::Middle;
    symbol.SymbolFilled = false;
    enableLabels();
}

/// Few and large areas are named in every layer; the many small ones in the layer of names alone. Where that layer is
/// drawn, one name of each area will do.
void GroupMap::enableLabels() {
    const int current = surface_.LayerIndex(), top = surface_.NumberOfLayers() - 1;
    const bool smallAreas = boundary().code != tvRegions;
    for (int index = 0; index <= top; ++index) {
        surface_.setLayerIndex(index);
        for (Symbol& symbol : surface_.layer().symbols)
            symbol.SymbolEnableLabels = index == top || (!smallAreas && surface_.MapScale() > namesShownUpTo);
    }
    surface_.setLayerIndex(current);
}

void GroupMap::viewChanged() {
    if (!building_ && groupLayerCount_ > 0)
        enableLabels();
}

void GroupMap::redraw() {
    const int layer = surface_.LayerIndex();
    DisplayGroups();
    AddIreland();
    AddLabelLayer();
    surface_.setLayerIndex(layer < surface_.NumberOfLayers() ? layer : 0);
    logAndGoOn([&] { surface_.DrawMap(); });
    surface_.Refresh();
}

void GroupMap::toolBarClicked(long tool) {
    if (tool == static_cast<long>(MapTool::ZoomToExtent))
        surface_.setLayerIndex(0);
}

void GroupMap::mouseDown(int button) {
    if (!zoomOutPastWholeMap(surface_, button, wholeScale_))
        return;
    viewChanged();
    if (surface_.needsDraw())
        logAndGoOn([&] { surface_.DrawMap(); });
}

void GroupMap::end() {
    deleteLayers();
    surface_.CloseLayerSource(0);
}
