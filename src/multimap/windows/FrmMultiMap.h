#pragma once

#include "map/surface/MapKey.h"
#include "multimap/MultiMapSession.h"

#include <QWidget>

#include <array>
#include <functional>

class MapKeyView;
class MapPane;
class MapSurfaceWidget;
class QComboBox;
class QLabel;
class QScrollArea;
class ucWebbyBorder;
class ucWebbyLink;
class uctFooter;
class uctHeader;

/// The window of several maps: two, four or six of one boundary side by side, each of a period of its own, with one
/// measure and one key for all. What it decides lies in MultiMapSession.
class FrmMultiMap : public QWidget {
    Q_OBJECT

public:
    explicit FrmMultiMap(QWidget* parent = nullptr);
    ~FrmMultiMap() override;

    /// Shows the figures that runMultiMapReport has made ready for a boundary. The window comes up with the first map;
    /// it returns when all are drawn.
    void showReport(long boundary, const MultiMapParameters& ranges);

    MultiMapSession& session() { return session_; }
    MapSurfaceWidget* MapSurface1(int mapIndex) const;
    /// Writes the workbook of what is in view. Throws RuntimeError 75 naming the path.
    void saveWorkbook(const std::string& path);

signals:
    /// The user has left; the parameter window comes back.
    void closed();
    void helpRequested();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    MapPane* pane(int mapIndex) const { return panes_.at(static_cast<std::size_t>(mapIndex - 1)); }
    std::array<MapPane*, MultiMapSession::mostMaps> makePanes();
    MultiMapSession::Surfaces surfaces() const;
    QWidget* keySide();
    void makeReportArea();
    void arrange();
    void arrangeMaps();
    void registerLinks();
    void connectMap(int mapIndex);

    void cmbMapType_Click(int row);
    void CmdExcel_Click();
    void alignMaps_Click();
    void MapSurface1_ToolBarClick(int mapIndex, long tool);
    void MapSurface1_DrawMapFinished(int mapIndex);
    void showAnswer(int mapIndex, const AreaAnswer& answer);

    /// Runs work that lets events run, with the controls that could disturb it disabled.
    void work(const std::function<void()>& task);
    void enableControls(bool enabled);
    void showBars();
    QString title() const;
    bool allInView() const;

    // In the order in which Tab goes through them.
    ucWebbyBorder* ucwbKey;
    QComboBox* cmbMapType;
    QScrollArea* ReportArea;
    QWidget* sheet_; ///< of the maps, which the area scrolls
    std::array<MapPane*, MultiMapSession::mostMaps> panes_;
    MapKey mapKey1_;
    MultiMapSession session_;

    uctHeader* uctHeader1;
    uctFooter* uctFooter1;
    MapKeyView* keyView_;
    QLabel* lblParameters;
    ucWebbyLink* CmdExcel = nullptr;
    ucWebbyLink* alignMaps_ = nullptr;
    bool working_ = false;
};
