#include "map/session/MapSession.h"

#include "animation/Animation.h"
#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Prompts.h"
#include "core/cPathControl.h"
#include "data/project/Databases.h"
#include "groups/AccountGroups.h"
#include "groups/ChangedGroups.h"
#include "groups/editor/BoundaryAfterGroups.h"
#include "groups/editor/OpenGroupTools.h"
#include "map/Boundaries.h"
#include "map/ClassBreaks.h"
#include "map/MapMeasures.h"
#include "map/WholeMap.h"
#include "map/data/MapData.h"
#include "map/form/LabelRule.h"
#include "map/spend/CampaignSpend.h"
#include "map/surface/MapKey.h"
#include "map/surface/MapSurface.h"
#include "report/ReportRun.h"
#include "stats/CurrentTables.h"
#include "stats/MapMaxima.h"
#include "stats/ModData_MaxValues.h"
#include "stats/SelectionState.h"

#include <cmath>
#include <filesystem>

namespace {

constexpr long tvRegions = 2, postcodeDistricts = 3, customerGroups = 5;
constexpr long averageCalls = 8;
constexpr int wholePeriod = 1;     ///< the data set of a map that is not animated
constexpr double pieScale = 80000; ///< from which width on the pie stands over sea

std::string emptyMapPath() {
    return joinPath(gPaths ? gPaths->ApplicationDataPath : std::string(), "EmptyMap.bin");
}

std::string byPopulation(long boundary) {
    return boundary == tvRegions ? "tblTVByPopulation" : "tblPostCodeByPopulation";
}

bool hasDensities(long boundary) {
    return boundary == tvRegions || boundary == postcodeDistricts;
}

} // namespace

MapSession::MapSession(MapSurface& surface, MapKey& key)
    : surface_(surface), key_(key), map_(surface, key, form, currentTables, mapMaxima) {}

void MapSession::begin(long boundary, const ReportParameters& parameters) {
    parameters_ = parameters;
    boundary_ = boundary;
    densities_ = false;
    rebuildOnDraw_ = false;
    form.closeRequested = form.mapReady = form.keepView = form.labelFlag = form.extentCaptured = false;
    form.CurrentFrame = 0;
    form.periods.MapStartDate[1] = parameters.DTStart;
    form.periods.MapEndDate[1] = parameters.DTEnd;
    form.periods.MapStartTime[1] = parameters.DTStartTime[0];
    form.periods.MapEndTime[1] = parameters.DTStartTime[1];
    mapTypes_ = mapTypeEntries();
    fitMapTypes(mapTypes_.front().code);
    playback.begin();
    resetAnimation();
    saveEmptyMap();
    if (gcCampaignSpend != 0)
        chargeAreas();
}

void MapSession::saveEmptyMap() {
    if (emptyMapSaved_)
        return;
    emptyMapSaved_ = logAndGoOn([&] { surface_.SaveMapFile(emptyMapPath()); });
}

void MapSession::loadEmptyMap() {
    std::error_code fault;
    if (std::filesystem::exists(toPath(emptyMapPath()), fault))
        logAndGoOn([&] { surface_.LoadMapFile(emptyMapPath()); });
}

void MapSession::build(long mapType, int dataSet) {
    map_.CreateMap(boundary_, mapType, dataSet);
}

void MapSession::framesReady() {
    densities_ = false;
    playback.framesReady();
}

void MapSession::build() {
    if (!playback.rebuild())
        build(mapType_, wholePeriod);
    if (mapType_ == averageCalls)
        form.chkDensitiesEnabled = false; // a boundary with population figures enables it
}

void MapSession::fitMapTypes(long wanted) {
    MapTypeChoice choice = mapTypesOf(gsBoundaryType, std::move(mapTypes_), wanted);
    mapTypes_ = std::move(choice.mapTypes);
    mapType_ = choice.mapType;
    form.chkDensitiesEnabled = choice.densitiesEnabled;
    if (!choice.densitiesEnabled)
        densities_ = false;
    if (choice.revertedToTotals)
        showMessage(std::string(averagesNotHere));
}

void MapSession::useTable(const std::string& table) {
    *currentTables.of(boundary_) = table;
    mapMaxima = {};
    logAndGoOn([&] { ModData_MaxValues(table, wholePeriod); });
}

bool MapSession::bringGroupsIn(long& code) {
    bool tooMany = false;
    logAndGoOn([&] { tooMany = tooManyGroups(); });
    if (tooMany) {
        code = tvRegions;
        return true;
    }
    const long result = ModData_UpdateCustomerGroups(fraSaveStatus, lblSaveStatus, lblGroupStatus);
    if (result != 0 && result != UserStopped)
        showMessage("Could not update Customer Groups");
    return result == 0;
}

bool MapSession::changeBoundary(long code) {
    if (!findBoundary(code) || (code == customerGroups && !bringGroupsIn(code)))
        return false;
    gsCurrentProc = "FrmMap_CmbBoundary_Click";
    playback.abandon();
    form.mapReady = form.labelFlag = form.extentCaptured = false;
    form.keepView = true;
    loadEmptyMap();
    const bool counted = logAndGoOn([&] { runReport(code, parameters_); });
    if (!counted) {
        showMessage("The figures of this boundary cannot be counted; the error log says why.");
        logAndGoOn([&] { runReport(boundary_, parameters_); });
        code = boundary_;
    }
    boundary_ = code;
    fitMapTypes(mapType_);
    const bool rates = densities_ && hasDensities(code) && !FilterActive;
    useTable(rates ? byPopulation(code) : *currentTables.of(code));
    build();
    chargeAreas();
    return true;
}

void MapSession::changeMapType(long code) {
    gsCurrentProc = "FrmMap_cmbMapType_Click";
    form.mapReady = false;
    if (code == averageCalls && playback.active())
        playback.stop(); // frames have no averages
    if (code == averageCalls && densities_) {
        densities_ = false;
        useTable(mainTable(boundary_));
    }
    fitMapTypes(code);
    build();
}

void MapSession::setDensities(bool on) {
    if (on == densities_ || !hasDensities(boundary_))
        return;
    gsCurrentProc = "FrmMap_chkDensities_Click";
    densities_ = on;
    useTable(on ? byPopulation(boundary_) : mainTable(boundary_));
    build();
    chargeAreas();
}

std::optional<long> MapSession::openGroupTools() {
    playback.abandon();
    long type = 0;
    const long result = OpenGroupTools(fraSaveStatus, lblSaveStatus, lblGroupStatus, type);
    if (result == -1)
        showMessage("Could not update Customer Groups");
    if (result != 0)
        return std::nullopt;
    deleteUpperLayers(surface_);
    return type;
}

void MapSession::groupToolsClosed() {
    bool groups = false;
    logAndGoOn([&] { groups = accountHasGroups(); });
    const BoundaryAfterGroups after = boundaryAfterGroups(groups, gsBoundaryType);
    if (!changeBoundary(after.boundary) && after.boundary != tvRegions)
        changeBoundary(tvRegions);
}

/// A table that was counted anew knows nothing of the campaign.
void MapSession::chargeAreas() {
    if (updateCostPerCallStats(boundary_, wholePeriod))
        return;
    showMessage("Please obtain up-to-date program files");
    if (programFilesOutdated)
        programFilesOutdated();
}

void MapSession::enterCampaignSpend() {
    if (::enterCampaignSpend())
        chargeAreas();
}

void MapSession::showLabels(bool visible) {
    form.labelFlag = visible;
    if (surface_.NumberOfLayers() < 2)
        return;
    surface_.setLayerIndex(surface_.NumberOfLayers() - 1);
    surface_.layer().LayerVisible = visible;
}

void MapSession::toolBarClicked(long tool) {
    const bool toExtent = tool == static_cast<long>(MapTool::ZoomToExtent);
    if (boundary_ != customerGroups)
        showLabels(labelsAfterToolBarClick(currentTables, surface_.MapScale(), toExtent, form.labelFlag));
    rebuildOnDraw_ = toExtent;
}

void MapSession::clicked() {
    if (boundary_ != customerGroups)
        showLabels(labelsAfterClick(currentTables, surface_.MapScale()));
}

void MapSession::mouseDown(int button) {
    if (zoomOutPastWholeMap(surface_, button, form.savedView.scale))
        showLabels(true);
}

void MapSession::drawFinished() {
    if (!rebuildOnDraw_)
        return;
    rebuildOnDraw_ = false;
    form.extentCaptured = false;
    form.keepView = true;
    build();
}

void MapSession::end() {
    playback.abandon();
    form.CurrentFrame = 0;
    deleteUpperLayers(surface_);
    surface_.CloseLayerSource(0);
    form.closeRequested = false;
}

DataView MapSession::dataView() const {
    return ::dataView(boundary_, playback.dataSet(), densities_);
}

std::optional<MapTotals> MapSession::totals() const {
    std::optional<MapTotals> totals;
    ignoreErrors([&] {
        const std::string& shown = *currentTables.of(boundary_);
        const std::string period = std::to_string(playback.dataSet());
        const auto row = systemDatabase().openRecordset("SELECT Sum(TotalCalls" + period + "), Sum(Cost" + period +
                                                        ") FROM " + (densities_ ? mainTable(boundary_) : shown));
        const auto figure = [&](int at) { return row->value(at).isNull() ? 0.0 : row->value(at).asDouble(); };
        totals = MapTotals{std::llround(figure(0)), figure(1)};
    });
    return totals;
}

CallTypeBars MapSession::bars() const {
    const MapMeasure* measure = findMapMeasure(mapType_);
    const auto breaks = measure ? splitBandList(bandList(measure->maximum(mapMaxima))) : std::vector<std::string>();
    const std::string column = statisticsColumn(mapType_, playback.dataSet());
    CallTypeBars bars;
    logAndGoOn([&] {
        bars = boundary_ == customerGroups ? callTypeBarsOfGroups(column, breaks)
                                           : callTypeBars(*currentTables.of(boundary_), column, breaks);
    });
    return bars;
}

std::optional<CallTypeSplit> MapSession::split(bool& failed) const {
    std::optional<CallTypeSplit> split;
    failed = !logAndGoOn([&] { split = callTypeSplit(gsBoundaryType, mapType_); });
    return split;
}

bool MapSession::pieHasRoom() const {
    return surface_.MapScale() > pieScale;
}

AreaQuestion MapSession::question() const {
    AreaQuestion question;
    question.boundaryType = gsBoundaryType;
    question.table = *currentTables.of(boundary_);
    question.dataSet = playback.dataSet();
    question.densities = densities_;
    question.groupBaseGeography = form.groupBaseGeography;
    if (gcCampaignSpend != 0)
        question.campaign = campaignCosts;
    return question;
}

AreaAnswer MapSession::areaAt(int layer, long entity) {
    AreaAnswer answer;
    if (layer < 0 || layer >= surface_.NumberOfLayers())
        return answer;
    surface_.setLayerIndex(layer);
    const std::string name = surface_.layer().LayerName;
    surface_.setLayerIndex(0);
    if (name == "Boundaries" || name == "Republic Of Ireland")
        return answer;
    if (boundary_ == customerGroups && layer > 0) {
        answer.message = "This area is not included in a Group";
        return answer;
    }
    gsCurrentProc = "FrmMap_MapSurface1_MapEntityInfo";
    logAndGoOn([&] { answer = detailOfPolygon(question(), entity); });
    return answer;
}

AreaAnswer MapSession::callType(const std::string& name) const {
    AreaAnswer answer;
    gsCurrentProc = "FrmMap_MapSurface1_MapEntityInfo";
    logAndGoOn([&] { answer = detailOfCallType(question(), name); });
    return answer;
}
