// The layer of names on top of a thematic map.
#include "core/ModDeclarations.h"
#include "map/SystemMapSource.h"
#include "map/ThematicMap.h"
#include "map/surface/MapSurface.h"

namespace {

constexpr double LabelSize = 12.0;

} // namespace

void ThematicMap::AddLabelLayer(long boundary, bool /*animated*/) {
    gsCurrentProc = "FrmMap_AddLabelLayer";
    const Boundary* known = findBoundary(boundary);
    const std::string source(known == nullptr ? std::string_view() : known->labelSource);

    surface_.AddLayer();
    surface_.setLayerIndex(surface_.NumberOfLayers() - 1);
    form_.layerCount = surface_.NumberOfLayers();
    Layer& layer = surface_.layer();
    layer.LayerName = "Map Labels";
    layer.LayerSourceType = 1;
    layer.LayerDataSource = systemMapSource();
    layer.LayerInterpretation = CoverageKind::LabelPoints;
    layer.LayerCoverageName = known == nullptr ? std::string_view() : known->labelCoverage;
    layer.LayerLabelSource = source;
    layer.LayerVisible = labelsAreVisible(boundary);
    layer.LayerShownInKey = false;
    layer.LayerCheckForOverlap = true;

    Symbol& symbol = surface_.symbol();
    symbol.SymbolPointColor = 0;
    symbol.SymbolPointSymbol = "No Symbol";
    symbol.SymbolLabelFont = {gsFontName, LabelSize};
    symbol.SymbolLabelColor = 0;
    symbol.SymbolLabelJustification = LabelJustification::Centre;
    symbol.SymbolLabelBaseline = LabelBaseline::Middle;
    symbol.SymbolEnableLabels = true;
    symbol.SymbolFilled = false;
}

/// Few and large areas are always named; the small ones only once the view is close enough to set the label flag.
bool ThematicMap::labelsAreVisible(long boundary) const {
    if (boundary == 5 || boundary == 2)
        return true;
    const bool smallAreas = !tables_.CSG.empty() || !tables_.ExchangeArea.empty() || !tables_.PostCodeDistrict.empty();
    return form_.labelFlag || !smallAreas;
}
