#pragma once

#include "report/ProjectWindow.h"

class FrmMain;
class ReportRequest;

/// What the opening of a project asks for, given by the main window, a file dialogue and FrmMessage.
class ProjectLinks : public ProjectWindow {
public:
    ProjectLinks(FrmMain& window, ReportRequest& reports) : window_(window), reports_(reports) {}

    /// Opens the project of a row of LstHistory, from 0. Meanwhile no other row can be chosen.
    void openRow(int row);

    void showProjectName(const std::string& text) override;
    void readHistory() override;
    void EnableForm() override;
    void DisableForm() override;
    void Setup_Dates() override;
    void Setup_Location_List() override;
    void Setup_Inbound_List() override;
    void resetChoices() override;
    void restoreMultiMaps(const MultiMapSettings& settings) override;
    std::optional<std::string> chooseProject(const std::string& suggested) override;
    void showCapture(const std::function<void()>& work) override;

    void CmdReport_Click() override;
    /// The report that follows draws pie and map with its window.
    bool DrawPieChart() override { return true; }
    void CreateMap() override {}
    void removeCustomerGroups() override;

private:
    FrmMain& window_;
    ReportRequest& reports_;
};
