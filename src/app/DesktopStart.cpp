#include "app/DesktopStart.h"

#include "core/CommandLine.h"
#include "data/project/OpenProjectDatabase.h"
#include "data/project/UpdateMappingGISTable.h"
#include "data/upkeep/CheckForNewUKMapDB.h"
#include "report/FrmMain.h"
#include "ui/InterfaceFont.h"

#include <QApplication>

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
    mainWindow_->show();
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
    mainWindow_->showProject();
}
