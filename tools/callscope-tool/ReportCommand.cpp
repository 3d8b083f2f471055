#include "core/ModDeclarations.h"
#include "core/RuntimeError.h"
#include "core/cPathControl.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "groups/ChangedGroups.h"
#include "groups/UpdateCustomerGroups.h"
#include "map/ClassBreaks.h"
#include "map/MapFormState.h"
#include "map/MapMeasures.h"
#include "map/ReportPicture.h"
#include "map/ThematicMap.h"
#include "map/calltypes/CallTypePicture.h"
#include "map/data/MapData.h"
#include "map/surface/MapKey.h"
#include "map/surface/MapSurface.h"
#include "map/workbook/Workbook.h"
#include "report/CaptureProject.h"
#include "report/CaptureRow.h"
#include "report/OpenInstallation.h"
#include "report/ReportRun.h"
#include "stats/FigureEngine.h"
#include "stats/ProjectCalls.h"
#include "stats/SelectionState.h"
#include "tools/callscope-tool/AgreeingPrompts.h"
#include "tools/callscope-tool/Commands.h"
#include "tools/callscope-tool/Painting.h"
#include "tools/callscope-tool/ReportOptions.h"
#include "tools/callscope-tool/TextOutput.h"
#include "ui/cColours_CS.h"

#include <CLI/CLI.hpp>

#include <QBuffer>
#include <QPainter>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

constexpr long customerGroupsCode = 5;

/// Names and lengths of the stages of a run, shown at its end.
class StageTimes {
public:
    template<typename Stage>
    void measure(const std::string& name, Stage stage) {
        const auto start = std::chrono::steady_clock::now();
        stage();
        const auto length = std::chrono::steady_clock::now() - start;
        lines_ += name + std::string(12 - std::min<std::size_t>(name.size(), 11), ' ') +
                  std::to_string(std::chrono::duration_cast<std::chrono::milliseconds>(length).count()) + " ms\n";
    }
    const std::string& lines() const { return lines_; }

private:
    std::string lines_;
};

/// The map of a report, without a window.
struct DrawnMap {
    MapSurface surface;
    MapKey key{surface};
    MapFormState form;
};

std::string dateText(Date date) {
    return Value(date).asText();
}

std::string timeText(Date time) {
    const std::string text = Value(time).asText();
    return time.days == 0.0 ? "00:00:00" : text;
}

void describeMap(DrawnMap& map, const ReportOptions& options, const ReportParameters& parameters, long mapType) {
    map.form.periods.MapStartDate[1] = parameters.DTStart;
    map.form.periods.MapEndDate[1] = parameters.DTEnd;
    map.form.periods.MapStartTime[1] = parameters.DTStartTime[0];
    map.form.periods.MapEndTime[1] = parameters.DTStartTime[1];
    map.key.font.family = gsFontName;
    prepareReportMap(map.surface, QSize(options.width(), options.height()));
    ThematicMap(map.surface, map.key, map.form, currentTables, mapMaxima).CreateMap(options.boundaryCode(), mapType, 1);
}

QImage drawPicture(DrawnMap& map, const ReportOptions& options) {
    const Boundary& boundary = *findBoundary(options.boundaryCode());
    ReportCaption caption;
    caption.title = std::string(boundary.text) + " · " + options.mapType;
    caption.subtitle = toText(toPath(options.project).stem());
    caption.parameters = SelectionDescription;
    caption.showsMinimum = boundary.showsMinimum;
    return drawReportPicture(map.surface, map.key, map.form, caption, QSize(options.width(), options.height()));
}

/// The calls without a place on the map, over its sea.
void addPanels(QImage& picture, DrawnMap& map, const ReportOptions& options, const ReportFigures& figures,
               long mapType) {
    CallTypePicture panels;
    const MapMeasure& measure = *findMapMeasure(mapType);
    const auto breaks = splitBandList(bandList(measure.maximum(mapMaxima)));
    const std::string column = statisticsColumn(mapType, 1);
    panels.withGroups = options.boundaryCode() == customerGroupsCode;
    panels.bars =
        panels.withGroups ? callTypeBarsOfGroups(column, breaks) : callTypeBars(figures.table, column, breaks);
    panels.split = callTypeSplit(gsBoundaryType, mapType);
    panels.fontFamily = QString::fromStdString(gsFontName);
    for (int band = 0; band <= static_cast<int>(breaks.size()); ++band)
        panels.bandColours.push_back(QColor::fromRgb(cColours_CS().MapColour(band)));
    const double ratio = map.surface.style.devicePixelRatio;
    const int mapWidth = reportMapSize(picture.size()).width();
    QPainter painter(&picture);
    painter.scale(ratio, ratio);
    paintCallTypes(painter, QRectF((picture.width() - mapWidth) / ratio, 0, mapWidth / ratio, picture.height() / ratio),
                   panels);
}

QByteArray pngOf(const QImage& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

/// A stream to a file that is to be written; throws where it cannot be.
std::ofstream outputFile(const std::string& path) {
    std::ofstream stream(toPath(path), std::ios::binary | std::ios::trunc);
    if (!stream)
        throw RuntimeError(75, "The file '" + path + "' cannot be written");
    return stream;
}

void finish(std::ofstream& stream, const std::string& path) {
    stream.flush();
    if (!stream)
        throw RuntimeError(75, "The file '" + path + "' cannot be written to its end");
}

void writePng(const std::string& path, const QByteArray& png) {
    std::ofstream stream = outputFile(path);
    stream.write(png.constData(), png.size());
    finish(stream, path);
}

void writeCsv(const std::string& path, const std::string& table) {
    const auto rows = systemDatabase().openRecordset("SELECT * FROM " + table);
    std::ofstream stream = outputFile(path);
    writeRows(stream, *rows, RowFormat::Csv);
    finish(stream, path);
}

void writeXlsx(const ReportOptions& options, const ReportParameters& parameters, const QImage& picture) {
    const DataView view = dataView(options.boundaryCode(), 1, false);
    const WorkbookParameters words{dateText(parameters.DTStart), timeText(parameters.DTStartTime[0]),
                                   dateText(parameters.DTEnd), timeText(parameters.DTStartTime[1]),
                                   SelectionDescription};
    outputFile(options.xlsx).close(); // says so where the place cannot be written
    writeWorkbook(options.xlsx, words, readDataTable(view), picture);
}

void showFigures(const ReportOptions& options, const ReportFigures& figures, const DrawnMap& map, long mapType) {
    const Boundary& boundary = *findBoundary(options.boundaryCode());
    const std::string column = statisticsColumn(mapType, 1);
    const auto total = firstValue(systemDatabase(), "SELECT Sum(" + column + ") FROM " + figures.table);
    const auto& words = map.form.LblStatusValue;
    std::cout << "boundary    " << boundary.text << '\n'
              << "map type    " << options.mapType << '\n'
              << "table       " << figures.table << '\n'
              << "maximum     " << words[4] << ' ' << words[5] << '\n';
    if (boundary.showsMinimum)
        std::cout << "minimum     " << words[6] << ' ' << words[7] << '\n';
    std::cout << "total       " << unitSignOf(column) << (total ? total->asText() : "0") << '\n';
}

long mapTypeNamed(const std::string& name) {
    for (const MapMeasure& measure : mapMeasures()) {
        if (measure.text == name)
            return measure.mapType;
    }
    return 0;
}

FigureEngine engineNamed(const std::string& name) {
    if (name.empty())
        return FigureEngine::Automatic;
    return name == "scan" ? FigureEngine::Scan : FigureEngine::Statements;
}

/// What a scan had to do and could not is an error here; the log says why.
void requireWantedEngine() {
    if (figureEngine() == FigureEngine::Scan && usedFigureEngine() != FigureEngine::Scan)
        throw RuntimeError(5, "The calls cannot be counted by a scan; the error log says why");
}

/// A wanted engine counts anew what the report shows; otherwise figures that are there already are good.
void capture(long boundary) {
    if (figureEngine() == FigureEngine::Automatic) {
        captureUnlessCaptured();
        return;
    }
    forgetCapture();
    if (boundary == customerGroupsCode)
        captureProject(); // groups are made of the areas of another boundary
    else
        countWholeProject(boundary);
}

const char* engineWord() {
    switch (usedFigureEngine()) {
    case FigureEngine::Scan:
        return "scan";
    case FigureEngine::Statements:
        return "statements";
    case FigureEngine::Automatic:
        break;
    }
    return "none, the figures were there";
}

/// What Callscope has changed in the groups is applied before they are drawn.
void updateGroups() {
    const AgreeingPrompts agreeing;
    const long result = ModData_UpdateCustomerGroups({}, {}, {});
    if (result == UserStopped)
        throw RuntimeError(5, "The Customer Groups cannot be shown");
    if (result != 0)
        throw RuntimeError(5, "Could not update Customer Groups");
}

int runReportCommand(const ReportOptions& options) {
    setFigureEngine(engineNamed(options.engine));
    const long mapType = mapTypeNamed(options.mapType);
    StageTimes times;
    mainTable(options.boundaryCode()); // refuses before anything is opened
    times.measure("opening", [&] {
        openInstallation(options.dir);
        openProject(options.project);
    });
    const ReportParameters parameters = options.parameters(wholeProject());
    if (parameters.DTEnd.days < parameters.DTStart.days)
        throw RuntimeError(5, "Invalid date selection, report abandoned");
    if (figureEngine() != FigureEngine::Statements && (figureEngine() == FigureEngine::Scan || !isCaptured()))
        times.measure("columns", [] { projectCalls(); });
    times.measure("capture", [&] { capture(options.boundaryCode()); });
    if (options.boundaryCode() == customerGroupsCode)
        times.measure("groups", updateGroups);
    requireWantedEngine();
    ReportFigures figures;
    times.measure("figures", [&] { figures = runReport(options.boundaryCode(), parameters); });
    requireWantedEngine();

    startPainting();
    DrawnMap map;
    QImage picture;
    times.measure("map", [&] { describeMap(map, options, parameters, mapType); });
    if (!options.png.empty() || !options.xlsx.empty())
        times.measure("picture", [&] {
            picture = drawPicture(map, options);
            if (options.withPanels)
                addPanels(picture, map, options, figures, mapType);
        });
    if (!options.png.empty())
        writePng(options.png, pngOf(picture));
    if (!options.csv.empty())
        writeCsv(options.csv, figures.table);
    if (!options.xlsx.empty())
        writeXlsx(options, parameters, picture);
    showFigures(options, figures, map, mapType);
    std::cout << "engine      " << engineWord() << '\n' << times.lines();
    return Done;
}

} // namespace

void addReportCommand(CLI::App& app, Action& action) {
    CLI::App* command = app.add_subcommand("report", "Counts the calls of a project by area and draws the map");
    const auto options = addReportOptions(*command);
    command->callback([options, &action] { action = [options] { return runReportCommand(*options); }; });
}
