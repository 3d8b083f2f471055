#include "app/ProjectLinks.h"

#include "app/ReportRequest.h"
#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "map/windows/FrmMap.h"
#include "report/FrmMain.h"
#include "report/FrmMain_lsthistory_click.h"
#include "ui/FrmMessage.h"

#include <QFileDialog>
#include <QListWidget>

namespace {

/// Keeps another project out while this one is being opened.
class Busy {
public:
    explicit Busy(FrmMain& window) : window_(window), before_(!window.LstHistory()->isEnabled()) {
        window_.setBusy(true);
    }
    ~Busy() { window_.setBusy(before_); }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    FrmMain& window_;
    bool before_;
};

} // namespace

void ProjectLinks::openRow(int row) {
    QListWidget* list = window_.LstHistory();
    if (!list->isEnabled())
        return;
    window_.setBusy(true);
    FrmMain_lsthistory_click(*this, row + 1);
    window_.setBusy(false);
    list->setFocus();
}

void ProjectLinks::showProjectName(const std::string& text) {
    window_.showProjectName(text);
}

void ProjectLinks::readHistory() {
    window_.readHistory();
}

void ProjectLinks::EnableForm() {
    window_.EnableForm();
}

void ProjectLinks::DisableForm() {
    window_.DisableForm();
}

void ProjectLinks::Setup_Dates() {
    window_.Setup_Dates();
}

void ProjectLinks::Setup_Location_List() {
    const Busy busy(window_); // the calls are read for it
    window_.Setup_Location_List();
}

void ProjectLinks::Setup_Inbound_List() {
    window_.Setup_Inbound_List();
}

void ProjectLinks::resetChoices() {
    window_.resetChoices();
}

void ProjectLinks::restoreMultiMaps(const MultiMapSettings& settings) {
    window_.restoreMultiMaps(settings);
}

std::optional<std::string> ProjectLinks::chooseProject(const std::string& suggested) {
    const std::string start = !suggested.empty() ? suggested : gPaths ? gPaths->ProjectDataPath : std::string();
    const QString chosen =
        QFileDialog::getOpenFileName(&window_, FrmMain::tr("Open a project"), QString::fromStdString(start),
                                     FrmMain::tr("MS Access Files (*.MDB *.mdb)"));
    if (chosen.isEmpty())
        return std::nullopt;
    return chosen.toStdString();
}

void ProjectLinks::showCapture(const std::function<void()>& work) {
    FrmMessage(work, &window_).run();
}

void ProjectLinks::CmdReport_Click() {
    reports_.runPresentBoundary();
}

void ProjectLinks::removeCustomerGroups() {
    reports_.map().removeCustomerGroups();
}
