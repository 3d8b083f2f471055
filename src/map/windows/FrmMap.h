#pragma once

#include "map/session/MapSession.h"
#include "map/surface/MapKey.h"

#include <QImage>
#include <QWidget>

class AnimationStrip;
class CallTypePanel;
class CallTypePie;
class MapKeyView;
class MapStatusPanel;
class MapSurfaceWidget;
class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QProgressBar;
struct WorkbookParameters;
class ucWebbyLink;
class uctFooter;
class uctHeader;

/// The window of a single map: the map with its tools, the choice of boundary and measure, key and read-outs at the
/// side, the calls without a place on the map over the sea. What it decides lies in MapSession.
class FrmMap : public QWidget {
    Q_OBJECT

public:
    explicit FrmMap(QWidget* parent = nullptr);
    ~FrmMap() override;

    /// Shows the figures that a report run has made ready. The window comes up with the map.
    void showReport(long boundary, const ReportParameters& parameters);
    /// Fence off the lists, the map and the tools while one of them works.
    void EnableForm();
    void DisableForm();
    /// Takes "Customer Groups" from CmbBoundary.
    void removeCustomerGroups();

    MapSession& session() { return session_; }
    MapSurfaceWidget* MapSurface1() const { return mapSurface1_; }
    /// Where the re-analysis for another boundary shows itself.
    QLabel* Label8() const { return label8_; }
    QProgressBar* Prog1() const { return prog1_; }

signals:
    void closed();
    void helpRequested();
    /// The files of the program do not fit each other; the user knows.
    void programFilesOutdated();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Work; // the form is disabled as long as it lives

    void makeLists();
    QWidget* sidePanel();
    QWidget* saveStatus();
    void arrange();
    void registerLinks();
    void connectControls();
    void nameMap();

    void CmbBoundary_Click(int row);
    void cmbMapType_Click(int row);
    void chkDensities_Click(bool on);
    void CmdData_Click();
    void CmdExcel_Click();
    void cmdGroup_Click();
    void CmdSetUp_Click();
    void playbackChanged();
    void cmdCampaignSpend_Click();
    void MapSurface1_ToolBarClick(long tool);
    void MapSurface1_DrawMapFinished();
    void MapSurface1_MapEntityInfo(short layer, long entity);
    void showAnswer(const AreaAnswer& answer);

    QImage pictureWithoutButtons();
    WorkbookParameters parameters() const;
    void enableControls(); ///< each by what the window does now
    void refresh();        ///< every control follows the session
    void listBoundaries();
    void showTotals();
    void fillMapTypes();
    void showPanels(); ///< pie and bars
    void placePanels();
    bool pieStandsOverSea() const;

    MapSurfaceWidget* mapSurface1_;
    MapKey mapKey1_;
    MapSession session_;

    uctHeader* uctHeader1;
    uctFooter* uctFooter1;
    QComboBox* CmbBoundary;
    QComboBox* cmbMapType;
    QCheckBox* chkDensities;
    MapKeyView* keyView_;
    MapStatusPanel* status_;
    QFrame* fraSaveStatus = nullptr;
    QLabel* lblSaveStatus = nullptr;
    QLabel* lblGroupStatus = nullptr;
    QLabel* label8_;
    QProgressBar* prog1_;
    ucWebbyLink* lblViewMap;
    ucWebbyLink* lblExcel;
    ucWebbyLink* lblGroupTools;
    ucWebbyLink* cmdCampaignSpend;
    AnimationStrip* strip_;
    CallTypePie* fraPie;
    CallTypePanel* fraOtherCallAreas;
    bool working_ = false;
};
