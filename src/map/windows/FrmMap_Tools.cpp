#include "animation/playback/windows/AnimationStrip.h"
#include "animation/windows/FrmAnimate.h"
#include "core/ModDeclarations.h"
#include "groups/windows/frmGroups.h"
#include "map/data/MapData.h"
#include "map/data/windows/MapOutput.h"
#include "map/surface/windows/MapSurfaceWidget.h"
#include "map/surface/windows/MapToolBar.h"
#include "map/windows/FrmMapWork.h"
#include "map/workbook/Workbook.h"
#include "stats/SelectionState.h"
#include "ui/uctFooter.h"

#include <QApplication>
#include <QLayout>

#include <vector>

namespace {

/// Out of sight as long as it lives, which is too short for a repaint.
class Hidden {
public:
    Hidden(QWidget& window, std::initializer_list<QWidget*> controls) : window_(window), controls_(controls) {
        show(false);
    }
    ~Hidden() { show(true); }
    Hidden(const Hidden&) = delete;
    Hidden& operator=(const Hidden&) = delete;

private:
    void show(bool visible) {
        for (QWidget* control : controls_)
            control->setVisible(visible);
        QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        window_.layout()->activate();
    }

    QWidget& window_;
    std::vector<QWidget*> controls_;
};

} // namespace

QImage FrmMap::pictureWithoutButtons() {
    const Hidden hidden(*this, {uctFooter1, strip_, &mapSurface1_->toolBar()});
    mapSurface1_->shownPicture(); // drawn at the size that it has now
    return grab().toImage();
}

WorkbookParameters FrmMap::parameters() const {
    const auto& shown = session_.form.LblStatusValue;
    return {.startDate = shown[0],
            .startTime = shown[2],
            .endDate = shown[1],
            .endTime = shown[3],
            .selectionDescription = SelectionDescription};
}

void FrmMap::CmdData_Click() {
    if (working_)
        return;
    gsCurrentProc = "FrmMap_CmdData_Click";
    viewMapData(session_.dataView(), parameters(), this);
}

void FrmMap::CmdExcel_Click() {
    if (working_)
        return;
    const QImage picture = pictureWithoutButtons();
    const Work work(*this);
    gsCurrentProc = "FrmMap_CmdExcel_Click";
    outputMapPicture(parameters(), picture);
}

void FrmMap::CmdSetUp_Click() {
    if (working_)
        return;
    // Frames are counted by selections of their own; the map keeps that of its report.
    const std::string selection = SelectionSql, description = SelectionDescription;
    FrmAnimate window(session_.parameters(), session_.form.periods, this);
    const bool accepted = window.exec() == QDialog::Accepted;
    SelectionSql = selection;
    SelectionDescription = description;
    if (accepted)
        session_.framesReady();
}

void FrmMap::playbackChanged() {
    if (working_)
        return; // whoever works shows what has become of it
    if (!session_.playback.busy()) {
        session_.form.closeRequested = false;
        showPanels();
    }
    refresh();
}

void FrmMap::cmdGroup_Click() {
    if (working_)
        return;
    gsCurrentProc = "FrmMap_cmdGroup_Click";
    std::optional<long> kind;
    {
        const Work work(*this);
        kind = session_.openGroupTools();
    }
    if (!kind) {
        refresh();
        return;
    }
    frmGroups(*kind, this).exec();
    listBoundaries();
    {
        const Work work(*this);
        session_.groupToolsClosed();
        showPanels();
    }
    refresh();
}

void FrmMap::cmdCampaignSpend_Click() {
    if (working_)
        return;
    session_.enterCampaignSpend();
}
