#include "app/ReportRequest.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "data/project/UpdateMappingGISTable.h"
#include "groups/AccountGroups.h"
#include "groups/ChangedGroups.h"
#include "groups/UpdateCustomerGroups.h"
#include "groups/editor/OpenGroupTools.h"
#include "groups/windows/frmGroups.h"
#include "help/OpenHelp.h"
#include "map/Boundaries.h"
#include "map/windows/FrmMap.h"
#include "multimap/windows/FrmMultiMap.h"
#include "report/CheckReportInput.h"
#include "report/FrmMain.h"
#include "report/ReportRun.h"
#include "report/panels/ReportButtons.h"
#include "ui/WindowProgress.h"

#include <QApplication>
#include <QListWidget>

#include <array>
#include <utility>

namespace {

constexpr long steps = 5;
constexpr long tvRegions = 2, postCodeDistricts = 3, customerGroups = 5;

/// The boundaries that the buttons of a single map stand for.
constexpr std::array boundaryButtons{std::pair{ReportButtons::exchanges, 0L}, std::pair{ReportButtons::csgs, 1L},
                                     std::pair{ReportButtons::tvRegions, tvRegions},
                                     std::pair{ReportButtons::postCodeDistricts, postCodeDistricts},
                                     std::pair{ReportButtons::customerGroups, customerGroups}};

long boundaryOf(int index) {
    for (const auto& [button, boundary] : boundaryButtons) {
        if (button == index)
            return boundary;
    }
    return customerGroups;
}

int buttonOf(std::string_view boundaryType) {
    for (const auto& [button, code] : boundaryButtons) {
        if (findBoundary(code)->boundaryType == boundaryType)
            return button;
    }
    return ReportButtons::tvRegions;
}

/// Whether a step on the way to the groups succeeded; the user is told where it failed.
bool succeeded(long result) {
    if (result != 0 && result != UserStopped)
        showMessage("Could not update Customer Groups");
    return result == 0;
}

/// An account without groups may make some. False where there are none afterwards.
bool groupsAreMade(QWidget& window) {
    long kind = 0;
    if (!succeeded(OpenGroupTools({}, {}, {}, kind)))
        return false;
    frmGroups(kind, &window).exec();
    if (accountHasGroups())
        return true;
    showMessage("No Customer Groups have been set up. Please do this in Callscope before attempting to update "
                "Groups with Callscope Mapping");
    return false;
}

/// The groups are as Callscope has them. False where the user stopped, or they cannot be.
bool groupsAreReady(QWidget& window) {
    if (!accountHasGroups())
        return groupsAreMade(window);
    long result = 0;
    FrmMain_UpdateCustomerGroups(result);
    return succeeded(result);
}

void bringGeographyUpToDate() {
    if (ModUtilities_UpdateMappingGISTable(projectDatabase()) != 0)
        showMessage("An error occurred updating the Exchange GIS data");
}

} // namespace

/// The window takes no input, and its list of projects keeps a second run out, as long as it lives.
class ReportRequest::Fence {
public:
    explicit Fence(FrmMain& window) : window_(window) {
        window.LstHistory()->setEnabled(false);
        window.DisableForm();
    }
    ~Fence() {
        progress().setReportBar(false, steps, 0);
        window_.LstHistory()->setEnabled(true);
        window_.EnableForm();
    }
    Fence(const Fence&) = delete;
    Fence& operator=(const Fence&) = delete;

private:
    FrmMain& window_;
};

ReportRequest::ReportRequest(FrmMain& window, WindowProgress& progress) : window_(window), progress_(progress) {}

ReportRequest::~ReportRequest() = default;

FrmMap& ReportRequest::map() {
    if (!map_) {
        map_ = std::make_unique<FrmMap>();
        QObject::connect(map_.get(), &FrmMap::closed, &window_, [this] { mapClosed(); });
        QObject::connect(map_.get(), &FrmMap::helpRequested, map_.get(), [this] { openHelp(*map_); });
        QObject::connect(map_.get(), &FrmMap::programFilesOutdated, &window_, [] { QApplication::exit(1); });
    }
    return *map_;
}

FrmMultiMap& ReportRequest::maps() {
    if (!maps_) {
        maps_ = std::make_unique<FrmMultiMap>();
        QObject::connect(maps_.get(), &FrmMultiMap::closed, &window_, [this] { mapClosed(); });
        QObject::connect(maps_.get(), &FrmMultiMap::helpRequested, maps_.get(), [this] { openHelp(*maps_); });
    }
    return *maps_;
}

void ReportRequest::mapClosed() {
    progress_.showReportOn(window_.Label8(), window_.Prog1());
    fence_.reset();
    window_.activateWindow();
}

bool ReportRequest::count(long boundary) {
    bringGeographyUpToDate();
    const ReportParameters parameters = window_.parameters();
    if (!checkDates(parameters) || !checkChoices(parameters) || !confirmTimes(parameters))
        return false;
    if (boundary == customerGroups && !groupsAreReady(window_))
        return false;
    const Hourglass hourglass;
    progress().setReportBar(true, steps, 0);
    progress().yield();
    runReport(boundary, parameters);
    progress().setReportBar(true, steps, steps);
    progress().yield();
    return true;
}

bool ReportRequest::showSeveralMaps() {
    bringGeographyUpToDate();
    const ReportParameters parameters = window_.parameters();
    const MultiMapParameters ranges = window_.multiMapParameters();
    if (!checkDates(parameters) || !checkChoices(parameters) || !checkRanges(parameters, ranges))
        return false;
    const long boundary = window_.multiMapPostCodeDistricts() ? postCodeDistricts : tvRegions;
    {
        const Hourglass hourglass;
        runMultiMapReport(boundary, parameters, ranges);
    }
    progress().setReportBar(false, steps, 0);
    maps().showReport(boundary, ranges);
    return true;
}

void ReportRequest::showMap(long boundary) {
    progress().setReportBar(false, steps, 0);
    progress_.showReportOn(map().Label8(), map().Prog1());
    map().showReport(boundary, window_.parameters());
}

void ReportRequest::runPresentBoundary() {
    run(buttonOf(gsBoundaryType));
}

void ReportRequest::run(int index) {
    if (fence_ || !window_.LstHistory()->isEnabled())
        return;
    if (index == ReportButtons::chooseProject) {
        window_.LstHistory()->setCurrentRow(0);
        window_.LstHistory()->setFocus();
        return;
    }
    gsCurrentProc = "FrmMain_CmdReport_Click";
    fence_ = std::make_unique<Fence>(window_);
    bool shown = false;
    try {
        if (index == ReportButtons::multipleMaps) {
            shown = showSeveralMaps();
        } else if (const long boundary = boundaryOf(index); count(boundary)) {
            showMap(boundary);
            shown = true;
        }
    } catch (...) {
        logCurrentError();
        showMessage(currentError().description, PromptStyle::Information);
    }
    if (!shown)
        mapClosed();
}
