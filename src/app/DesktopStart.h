#pragma once

#include "app/SingleInstance.h"
#include "app/StartActions.h"
#include "ui/WindowProgress.h"

#include <memory>
#include <string>
#include <vector>

class FrmMain;
class ProjectLinks;
class ReportRequest;

/// The start on a desktop: real windows, and the procedures of the other rooms.
class DesktopStart : public StartActions {
public:
    DesktopStart(const std::string& pathsFolder, std::vector<std::string> arguments);
    ~DesktopStart() override;

    bool anotherInstanceRunning() override;
    bool addFontFile(const std::string& path) override;
    std::string commandLine() override;
    void showMainWindow() override;

    /// False once the user has closed it, which may be before the message loop begins.
    bool mainWindowIsOpen() const;

    int ModUtilities_CheckForNewUKMapDB() override;
    bool OpenProjectDatabase(const std::string& path) override;
    int ModUtilities_UpdateMappingGISTable(Database& project) override;
    void ModUtilities_OpenMap() override;

private:
    void connectMainWindow();

    SingleInstance instance_;
    std::vector<std::string> arguments_;
    WindowProgress progress_;
    std::unique_ptr<FrmMain> mainWindow_;
    std::unique_ptr<ReportRequest> reports_;
    std::unique_ptr<ProjectLinks> links_;
};
