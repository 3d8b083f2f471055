#include "app/ReportRequest.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "report/CheckReportInput.h"
#include "report/FrmMain.h"
#include "report/ReportRun.h"
#include "report/panels/ReportButtons.h"

#include <QListWidget>

namespace {

constexpr long steps = 5;

/// The boundary that a button of a single map stands for.
long boundaryOf(int index) {
    switch (index) {
    case ReportButtons::exchanges:
        return 0;
    case ReportButtons::csgs:
        return 1;
    case ReportButtons::tvRegions:
        return 2;
    case ReportButtons::postCodeDistricts:
        return 3;
    default:
        return 5;
    }
}

/// The window takes no input, and its list of projects keeps a second run out, as long as it lives.
class Fence {
public:
    explicit Fence(FrmMain& window) : window_(window) {
        window.setBusy(true);
        window.DisableForm();
    }
    ~Fence() {
        progress().setReportBar(false, steps, 0);
        window_.setBusy(false);
        window_.EnableForm();
    }
    Fence(const Fence&) = delete;
    Fence& operator=(const Fence&) = delete;

private:
    FrmMain& window_;
};

/// Whether there are figures now.
bool countSingleMap(FrmMain& window, int index) {
    const Fence fence(window);
    const ReportParameters parameters = window.parameters();
    if (!checkDates(parameters) || !checkChoices(parameters) || !confirmTimes(parameters))
        return false;
    const Hourglass hourglass;
    progress().setReportBar(true, steps, 0);
    progress().yield();
    runReport(boundaryOf(index), parameters);
    progress().setReportBar(true, steps, steps);
    progress().yield();
    return true;
}

bool checkSeveralMaps(FrmMain& window) {
    const Fence fence(window);
    const ReportParameters parameters = window.parameters();
    return checkChoices(parameters) && checkRanges(parameters, window.multiMapParameters());
}

} // namespace

void runRequestedReport(FrmMain& window, int index) {
    if (!window.LstHistory()->isEnabled())
        return;
    if (index == ReportButtons::chooseProject) {
        window.LstHistory()->setCurrentRow(0);
        window.LstHistory()->setFocus();
        return;
    }
    gsCurrentProc = "FrmMain_CmdReport_Click";
    try {
        if (index == ReportButtons::multipleMaps) {
            if (checkSeveralMaps(window))
                showMessage("The settings are in order. The window of several maps is not part of this program yet.",
                            PromptStyle::Information);
        } else if (countSingleMap(window, index)) {
            showMessage("The figures are counted. The map window is not part of this program yet.",
                        PromptStyle::Information);
        }
    } catch (...) {
        logCurrentError();
        showMessage(currentError().description, PromptStyle::Information);
    }
}
