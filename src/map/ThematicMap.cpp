#include "map/ThematicMap.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "data/engine/Database.h"
#include "map/BandSymbols.h"
#include "map/ClassBreaks.h"
#include "map/MapMeasures.h"
#include "map/SystemMapSource.h"
#include "map/surface/LayerSource.h"
#include "map/surface/MapKey.h"
#include "map/surface/MapSurface.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

namespace {

constexpr long CustomerGroups = 5;
constexpr double LabelSize = 12.0;
constexpr double HiddenLabelSize = 1.0;
constexpr MapColourCode Unclassified = 0x80FFFF;

constexpr const char* KeyLayer = "Map Colour Key";
constexpr const char* NonGroupLayer = "Non Group Geography";

/// The value of a read-out; 0 where it is empty.
double numberInReadOut(const std::string& text) {
    constexpr std::string_view pound = "£";
    const std::string digits = text.starts_with(pound) ? text.substr(pound.size()) : text;
    return digits.empty() ? 0.0 : Value(digits).asDouble();
}

/// Name and value of the first row; empty and 0 where there is none or a null.
std::pair<std::string, Money> firstArea(const std::string& statement) {
    std::pair<std::string, Money> area;
    grsData1 = gdbSystem->openRecordset(statement);
    if (!grsData1->EOF_()) {
        area.first = grsData1->value(0).asText();
        if (!grsData1->value(1).isNull())
            area.second = grsData1->value(1).asMoney();
    }
    grsData1->Close();
    return area;
}

/// "hh:mm:ss", whatever day the time carries.
std::string timeText(Date time) {
    const double ofDay = time.days - std::floor(time.days);
    return ofDay == 0.0 ? "00:00:00" : Value(Date{ofDay}).asText();
}

} // namespace

struct ThematicMap::Plan {
    long code = 0;
    Boundary boundary; // its names are empty for a code that does not exist
    std::string table; // of the statistics
    std::string column;
    std::string unitSign;
    std::string bands; // class breaks; empty for a map type that does not exist
};

ThematicMap::ThematicMap(MapSurface& MapSurface1, MapKey& MapKey1, MapFormState& form, CurrentTables& tables,
                         const MapMaxima& maxima)
    : surface_(MapSurface1), key_(MapKey1), form_(form), tables_(tables), maxima_(maxima) {}

bool ThematicMap::CreateMap(long boundary, long mapType, int dataSet) {
    const bool exitEnabled = std::exchange(form_.CmdExitEnabled, false);
    const bool footerEnabled = std::exchange(form_.uctFooter1Enabled, false);
    const auto enableExit = [&] {
        form_.CmdExitEnabled = exitEnabled;
        form_.uctFooter1Enabled = footerEnabled;
    };
    gsCurrentProc = "FrmMap_CreateMap";
    logAndGoOn([&] { deleteUpperLayers(); });
    if (std::exchange(form_.closeRequested, false)) {
        enableExit();
        return true;
    }
    Plan plan = planOf(boundary, mapType, dataSet);
    readExtremes(plan);
    enableDensities(boundary);
    surface_.setLayerIndex(0);
    if (boundary != CustomerGroups || surface_.layer().LayerName != NonGroupLayer)
        logAndGoOn([&] { ClearMap(); });
    setUpBaseLayer(plan);
    if (plan.bands.empty())
        logAndGoOn([&] { plan.bands = valuesOfColumn(plan); });
    logAndGoOn(
        [&] { buildBandSymbols(surface_, splitBandList(plan.bands), plan.unitSign, boundary == CustomerGroups); });
    if (boundary == CustomerGroups)
        FrmMap_DisplayNonGroupAreas(mapType, dataSet);
    AddLabelLayer(boundary);
    gsCurrentProc = "FrmMap_CreateMap";
    captureView();
    showPeriod();
    progress().yield();
    logAndGoOn([&] { key_.RebuildKey(); });
    logAndGoOn([&] { surface_.DrawMap(); });
    logAndGoOn([&] {
        if (numberInReadOut(form_.LblStatusValue[5]) == 0.0 && !form_.AnimationActive && !form_.oneOfSeveral) {
            showMessage("No Records Found");
            form_.mapReady = true;
        }
    });
    if (form_.updateCallTypePanels)
        logAndGoOn([&] { form_.updateCallTypePanels(boundary); });
    form_.groupLabelsVisible = boundary == CustomerGroups;
    enableExit();
    form_.mapReady = true;
    return true;
}

void ThematicMap::letGo() {
    deleteUpperLayers();
    surface_.CloseLayerSource(0);
}

void ThematicMap::ClearMap() {
    surface_.CloseLayerSource(surface_.LayerIndex());
    surface_.setSymbolIndex(0);
    while (surface_.NumberOfSymbols() > 1)
        surface_.DeleteSymbol();
}

ThematicMap::Plan ThematicMap::planOf(long boundary, long mapType, int dataSet) const {
    Plan plan;
    plan.code = boundary;
    if (const Boundary* known = findBoundary(boundary)) {
        plan.boundary = *known;
        plan.table = *tables_.of(boundary);
    }
    plan.column = statisticsColumn(mapType, dataSet);
    plan.unitSign = unitSignOf(plan.column);
    if (const MapMeasure* measure = findMapMeasure(mapType))
        plan.bands = bandList(measure->maximum(maxima_));
    return plan;
}

void ThematicMap::deleteUpperLayers() {
    while (surface_.NumberOfLayers() >= 2) {
        surface_.setLayerIndex(surface_.NumberOfLayers() - 1);
        surface_.CloseLayerSource(surface_.LayerIndex());
        surface_.DeleteLayer();
    }
}

void ThematicMap::readExtremes(const Plan& plan) {
    const Boundary* boundary = findBoundary(plan.code);
    if (boundary == nullptr)
        return;
    const std::string statement = "SELECT Top 1 " + std::string(boundary->keyColumn) + ", " + plan.column + " FROM " +
                                  plan.table + " ORDER BY " + plan.column;
    MapExtremes& extremes = form_.extremes[static_cast<std::size_t>(plan.code)];
    extremes = {};
    logAndGoOn([&] { std::tie(extremes.MapMaxName, extremes.MapMaxValue) = firstArea(statement + " DESC"); });
    form_.LblStatusValue[4] = extremes.MapMaxName;
    form_.LblStatusValue[5] = plan.unitSign + Value(extremes.MapMaxValue).asText();
    if (!boundary->showsMinimum)
        return;
    logAndGoOn([&] { std::tie(extremes.MapMinName, extremes.MapMinValue) = firstArea(statement + " ASC"); });
    form_.LblStatusValue[6] = extremes.MapMinName;
    form_.LblStatusValue[7] = plan.unitSign + Value(extremes.MapMinValue).asText();
}

void ThematicMap::enableDensities(long boundary) {
    if (boundary == 0)
        form_.chkDensitiesEnabled = false;
    else if (boundary == 2)
        form_.chkDensitiesEnabled = gbTVPopulation;
    else if (boundary == 3)
        form_.chkDensitiesEnabled = gbPostCodePopulation;
}

void ThematicMap::setUpBaseLayer(const Plan& plan) {
    const std::string shape(plan.boundary.shapeTable);
    const std::string name = shape + "." + std::string(plan.boundary.nameColumn);
    const std::string key = plan.table + "." + std::string(plan.boundary.keyColumn);
    const std::string value = plan.table + "." + plan.column;
    const bool labelled = plan.code != CustomerGroups;

    surface_.setLayerIndex(surface_.NumberOfLayers() - 1);
    Layer& layer = surface_.layer();
    layer.LayerName = KeyLayer + std::string(plan.unitSign.empty() ? "" : "(£)");
    layer.LayerSourceType = 1;
    layer.LayerDataSource = systemMapSource();
    surface_.KeepDataSourcesOpen = false;
    layer.LayerCoverageName = plan.boundary.coverage;
    layer.LayerInterpretation = CoverageKind::Polygons;
    layer.LayerJoins = shape + " LEFT JOIN " + plan.table + " ON Left(" + name + ", 50) = " + key;
    layer.LayerFields = name + ", " + key + ", " + value;
    layer.LayerLabelSource = labelled ? name : std::string();
    layer.LayerCheckForOverlap = true;
    layer.LayerVisible = true;
    layer.LayerSymbolExpression = value;

    Symbol& symbol = surface_.symbol();
    symbol.SymbolEnableLabels = labelled;
    symbol.SymbolLabelFont = {gsFontName, labelled ? LabelSize : HiddenLabelSize};
    symbol.SymbolPolygonColor = Unclassified;
    symbol.SymbolFilled = true;
}

std::string ThematicMap::valuesOfColumn(const Plan& plan) const {
    const auto values =
        LayerSource::parse(systemMapSource()).open()->openRecordset("SELECT " + plan.column + " FROM " + plan.table);
    std::string list;
    for (; !values->EOF_(); values->MoveNext()) {
        const std::string text = values->value(0).asText();
        const std::size_t begin = std::min(text.find_first_not_of(' '), text.size());
        const std::size_t end = text.find_last_not_of(' ') + 1;
        list += (list.empty() ? "" : ",") + text.substr(begin, end - std::min(begin, end));
    }
    return list;
}

void ThematicMap::captureView() {
    if (form_.extentCaptured)
        return;
    surface_.setLayerIndex(0);
    ignoreErrors([&] { surface_.ZoomToExtent(); });
    if (form_.keepView && form_.savedView.scale > 0.0) {
        surface_.CentreMapOn(form_.savedView.centerX, form_.savedView.centerY);
        surface_.setMapScale(form_.savedView.scale);
    } else {
        form_.savedView = {surface_.MapCenterX(), surface_.MapCenterY(), surface_.MapScale()};
    }
    form_.extentCaptured = true;
}

void ThematicMap::showPeriod() {
    logAndGoOn([&] {
        const auto frame = static_cast<std::size_t>(form_.CurrentFrame == 0 ? 1 : form_.CurrentFrame);
        const MapPeriods& periods = form_.periods;
        form_.LblStatusValue[0] = Value(periods.MapStartDate.at(frame)).asText();
        form_.LblStatusValue[1] = Value(periods.MapEndDate.at(frame)).asText();
        form_.LblStatusValue[2] = timeText(periods.MapStartTime.at(frame));
        form_.LblStatusValue[3] = timeText(periods.MapEndTime.at(frame));
    });
}
