#include "multimap/MultiMapSession.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "data/jet/Format.h"
#include "map/ClassBreaks.h"
#include "map/MapMeasures.h"
#include "map/form/LabelRule.h"
#include "map/surface/MapKey.h"
#include "map/surface/MapSurface.h"
#include "stats/CurrentTables.h"
#include "stats/MapMaxima.h"
#include "stats/SelectionState.h"

#include <cmath>
#include <utility>

namespace {

constexpr long lastMapType = 5; ///< callers are not counted for several maps
constexpr int pickersPerRange = 4;

/// Period 1 of the figures is the single map.
int dataSetOf(int mapIndex) {
    return mapIndex + 1;
}

} // namespace

std::vector<ListEntry> multiMapTypeEntries() {
    std::vector<ListEntry> entries;
    for (const MapMeasure& measure : mapMeasures()) {
        if (measure.mapType <= lastMapType)
            entries.push_back({measure.mapType, measure.text});
    }
    return entries;
}

MultiMapSession::MultiMapSession(const Surfaces& MapSurface1, MapKey& MapKey1) : key_(MapKey1) {
    for (std::size_t i = 0; i < maps_.size(); ++i)
        maps_[i].surface = MapSurface1[i];
}

void MultiMapSession::begin(long boundary, const MultiMapParameters& ranges) {
    ranges_ = ranges;
    count_ = mapCount(ranges);
    boundary_ = boundary;
    mapType_ = multiMapTypeEntries().front().code;
    selection_ = SelectionDescription;
    currentMap_ = 1;
    closeRequested = false;
    sharedView_ = {};
    for (IndexedMap& map : maps_) {
        map.form = {};
        map.form.oneOfSeveral = true;
        map.reload = false;
    }
}

void MultiMapSession::end() {
    for (int n = 1; n <= count_; ++n)
        thematic(n).letGo();
    count_ = 0;
}

ThematicMap MultiMapSession::thematic(int mapIndex) {
    IndexedMap& map = at(mapIndex);
    return {*map.surface, key_, map.form, currentTables, mapMaxima};
}

void MultiMapSession::CreateMap(int mapIndex) {
    if (!isOnShow(mapIndex))
        return;
    IndexedMap& map = at(mapIndex);
    if (std::exchange(map.reload, false)) {
        map.form.extentCaptured = false;
        map.form.keepView = true;
    }
    const bool fits = !map.form.extentCaptured;
    const QSize size = map.surface->camera().pixelSize();
    // A shared view of another window size would not be the whole map in this one.
    map.form.savedView = sharedSize_ == size ? sharedView_ : SavedView();
    thematic(mapIndex).CreateMap(boundary_, mapType_, dataSetOf(mapIndex));
    if (!fits || !map.form.extentCaptured)
        return;
    sharedView_ = map.form.savedView;
    sharedSize_ = size;
}

void MultiMapSession::createMaps() {
    for (int n = 1; n <= count_ && !closeRequested; ++n) {
        gsCurrentProc = "FrmMultiMap_CreateMap";
        CreateMap(n);
        progress().yield();
    }
    if (!closeRequested && sharedMaximum() == 0)
        showMessage("No Records Found");
}

double MultiMapSession::sharedMaximum() const {
    const MapMeasure* measure = findMapMeasure(mapType_);
    return measure ? measure->maximum(mapMaxima) : 0;
}

void MultiMapSession::changeMapType(long mapType) {
    mapType_ = mapType;
    createMaps();
}

void MultiMapSession::ApplyValues(int mapIndex, Recordset& values) {
    if (isOnShow(mapIndex))
        thematic(mapIndex).ApplyValues(values);
}

void MultiMapSession::AddLabelLayer(int mapIndex) {
    if (isOnShow(mapIndex))
        thematic(mapIndex).AddLabelLayer(boundary_);
}

void MultiMapSession::ClearMap(int mapIndex) {
    if (isOnShow(mapIndex))
        thematic(mapIndex).ClearMap();
}

void MultiMapSession::clicked(int mapIndex) {
    if (!isOnShow(mapIndex))
        return;
    currentMap_ = mapIndex;
    if (at(mapIndex).surface->UIMode() != MapTool::Information)
        fitLabels(mapIndex);
}

void MultiMapSession::viewChanged(int mapIndex) {
    if (!isOnShow(mapIndex))
        return;
    currentMap_ = mapIndex;
    fitLabels(mapIndex);
}

void MultiMapSession::fitLabels(int mapIndex) {
    showLabels(mapIndex, labelsAfterClick(currentTables, at(mapIndex).surface->MapScale()));
}

void MultiMapSession::showLabels(int mapIndex, bool visible) {
    IndexedMap& map = at(mapIndex);
    map.form.labelFlag = visible;
    const int layers = map.surface->NumberOfLayers();
    if (layers < 2)
        return;
    map.surface->setLayerIndex(layers - 1);
    map.surface->layer().LayerVisible = visible;
}

void MultiMapSession::toolBarClicked(int mapIndex, long tool) {
    if (!isOnShow(mapIndex))
        return;
    IndexedMap& map = at(mapIndex);
    currentMap_ = mapIndex;
    map.reload = tool == static_cast<long>(MapTool::ZoomToExtent);
    showLabels(mapIndex,
               labelsAfterToolBarClick(currentTables, map.surface->MapScale(), map.reload, map.form.labelFlag));
}

void MultiMapSession::drawFinished(int mapIndex) {
    if (at(mapIndex).reload)
        CreateMap(mapIndex);
}

void MultiMapSession::alignMaps() {
    if (!isOnShow(currentMap_))
        return;
    const Camera view = at(currentMap_).surface->camera();
    for (int n = 1; n <= count_; ++n) {
        MapSurface& surface = *at(n).surface;
        if (surface.camera() == view)
            continue;
        surface.setCamera(view);
        fitLabels(n);
        logAndGoOn([&] { surface.DrawMap(); });
        progress().yield();
    }
}

bool MultiMapSession::mayOutputToExcel(bool mapsFinished, bool allInView) const {
    if (!mapsFinished) {
        showMessage("Please wait for maps to finish drawing");
        return false;
    }
    return allInView || askYesNo("Only the details currently visible will be output to Excel, are you sure you want to "
                                 "continue?");
}

bool MultiMapSession::mapsFinished() const {
    for (int n = 1; n <= count_; ++n) {
        if (at(n).reload || at(n).surface->needsDraw())
            return false;
    }
    return true;
}

std::string MultiMapSession::period(int mapIndex) const {
    const auto* picked = &ranges_.DTPicker1.at(static_cast<std::size_t>((mapIndex - 1) * pickersPerRange));
    const auto date = [&](int picker) { return Value(Date{std::floor(picked[picker].days)}).asText(); };
    const auto time = [&](int picker) { return jet::formatValue(Value(picked[picker]), "hh:nn:ss"); };
    return "From " + date(0) + " " + time(1) + " to " + date(2) + " " + time(3);
}

CallTypeBars MultiMapSession::bars(int mapIndex) const {
    CallTypeBars bars;
    logAndGoOn([&] {
        bars = callTypeBars(*currentTables.of(boundary_), statisticsColumn(mapType_, dataSetOf(mapIndex)),
                            splitBandList(bandList(sharedMaximum())));
    });
    return bars;
}

std::string MultiMapSession::selection() const {
    return selection_;
}

AreaQuestion MultiMapSession::question(int mapIndex) const {
    AreaQuestion question;
    question.boundaryType = gsBoundaryType;
    question.table = *currentTables.of(boundary_);
    question.dataSet = dataSetOf(mapIndex);
    if (gcCampaignSpend != 0)
        question.campaign = campaignCosts;
    return question;
}

AreaAnswer MultiMapSession::areaAt(int mapIndex, int layer, long entity) const {
    AreaAnswer answer;
    if (!isOnShow(mapIndex) || layer != 0)
        return answer; // only the lowest layer has areas
    gsCurrentProc = "FrmMultiMap_MapSurface1_MapEntityInfo";
    logAndGoOn([&] { answer = detailOfPolygon(question(mapIndex), entity); });
    return answer;
}

AreaAnswer MultiMapSession::callType(int mapIndex, const std::string& name) const {
    AreaAnswer answer;
    if (!isOnShow(mapIndex))
        return answer;
    gsCurrentProc = "FrmMultiMap_MapSurface1_MapEntityInfo";
    logAndGoOn([&] { answer = detailOfCallType(question(mapIndex), name); });
    return answer;
}
