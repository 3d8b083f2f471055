#pragma once

#include "report/CaptureRow.h"

#include <functional>
#include <optional>
#include <string>

/// What the opening of a project asks of the main window and of the windows that it leads to. FrmMain gives them; a
/// test gives a script. Members that fill lists log their own errors.
class ProjectWindow {
public:
    virtual ~ProjectWindow() = default;

    /// Label3: the project's short name, or what to do.
    virtual void showProjectName(const std::string& text) = 0;
    /// Fills LstHistory from the history file; nothing is selected.
    virtual void readHistory() = 0;
    virtual void EnableForm() = 0;
    virtual void DisableForm() = 0;

    virtual void Setup_Dates() = 0;
    virtual void Setup_Location_List() = 0;
    virtual void Setup_Inbound_List() = 0;
    /// The options stand on "all" and their lists are in their first state.
    virtual void resetChoices() = 0;
    virtual void restoreMultiMaps(const MultiMapSettings& settings) = 0;

    /// A file that the user chooses; `suggested` is offered. Nothing where the user cancels.
    virtual std::optional<std::string> chooseProject(const std::string& suggested) = 0;
    /// Shows FrmMessage and does the work in it; returns when both are done.
    virtual void showCapture(const std::function<void()>& work) = 0;

    /// The report run, as its buttons start it.
    virtual void CmdReport_Click() = 0;
    /// The pie of the map window. False where it failed.
    virtual bool DrawPieChart() = 0;
    /// The map window's first map, anew.
    virtual void CreateMap() = 0;
    /// Takes "Customer Groups" from the boundaries of the map window.
    virtual void removeCustomerGroups() = 0;
};
