#include "app/DesktopStart.h"

#include "app/ProjectLinks.h"
#include "app/ReportRequest.h"
#include "core/CommandLine.h"
#include "core/FileNames.h"
#include "core/ModDeclarations.h"
#include "core/Prompts.h"
#include "core/cPathControl.h"
#include "data/project/OpenProjectDatabase.h"
#include "data/project/UpdateMappingGISTable.h"
#include "data/upkeep/CheckForNewUKMapDB.h"
#include "help/FrmMain_PrintUserGuide.h"
#include "help/OpenHelp.h"
#include "report/FrmMain.h"
#include "report/ModUtilities_OpenMap.h"
#include "ui/InterfaceFont.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QThread>
#include <QWindow>

namespace {

/// A project that is opened next takes its time: the window is painted before.
void showItself(QWidget& window) {
    constexpr int longest = 500; // milliseconds; there may be nobody who looks
    QElapsedTimer waiting;
    waiting.start();
    while (!window.windowHandle()->isExposed() && waiting.elapsed() < longest) {
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(5);
    }
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void sayNotBuilt(const char* what) {
    showMessage(std::string(what) + " is not part of this program yet.", PromptStyle::Information);
}

} // namespace

DesktopStart::DesktopStart(const std::string& pathsFolder, std::vector<std::string> arguments)
    : instance_(pathsFolder), arguments_(std::move(arguments)) {}

DesktopStart::~DesktopStart() = default;

bool DesktopStart::anotherInstanceRunning() {
    return instance_.anotherIsRunning();
}

bool DesktopStart::addFontFile(const std::string& path) {
    return addFontResource(path);
}

std::string DesktopStart::commandLine() {
    return rebuildCommandLine(arguments_);
}

void DesktopStart::showMainWindow() {
    applyInterfaceFont();
    mainWindow_ = std::make_unique<FrmMain>();
    connectMainWindow();
    mainWindow_->show();
    showItself(*mainWindow_);
}

void DesktopStart::connectMainWindow() {
    FrmMain* window = mainWindow_.get();
    reports_ = std::make_unique<ReportRequest>(*window, progress_);
    links_ = std::make_unique<ProjectLinks>(*window, *reports_);
    progress_.showReportOn(window->Label8(), window->Prog1());
    // Once the list is done with the click: opening a project fills it anew.
    QObject::connect(
        window, &FrmMain::historyRowChosen, window, [this](int row) { links_->openRow(row); }, Qt::QueuedConnection);
    QObject::connect(window, &FrmMain::reportRequested, window, [this](int index) { reports_->run(index); });
    QObject::connect(window, &FrmMain::helpRequested, window, [window] { openHelp(*window); });
    QObject::connect(window, &FrmMain::populationFiguresRequested, window,
                     [] { sayNotBuilt("The editor of population figures"); });
    QObject::connect(window, &FrmMain::userGuideRequested, window, [] { FrmMain_PrintUserGuide(); });
    QObject::connect(window, &FrmMain::saveGuideRequested, window, [] { saveUserGuide(); });
}

bool DesktopStart::mainWindowIsOpen() const {
    return mainWindow_ && mainWindow_->isVisible();
}

int DesktopStart::ModUtilities_CheckForNewUKMapDB() {
    return ::ModUtilities_CheckForNewUKMapDB();
}

bool DesktopStart::OpenProjectDatabase(const std::string& path) {
    return ::OpenProjectDatabase(path);
}

int DesktopStart::ModUtilities_UpdateMappingGISTable(Database& project) {
    return ::ModUtilities_UpdateMappingGISTable(project);
}

void DesktopStart::ModUtilities_OpenMap() {
    ::ModUtilities_OpenMap(*links_);
}
