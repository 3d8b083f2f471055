#pragma once

#include "groups/editor/GroupEditor.h"
#include "groups/editor/GroupMap.h"

#include <QDialog>

#include <optional>
#include <string>
#include <vector>

class CallAreaPanel;
class MapSurfaceWidget;
class QFrame;
class QLabel;
class QMenu;
class QTreeWidget;
class ucWebbyLink;
class uctFooter;
class uctHeader;

/// The group tools: the groups of the account in a list, and a map on which areas are put into the selected one. Modal;
/// run it by exec() when OpenGroupTools has made the tables. The map is built when the window has come up. What it
/// decides lies in GroupEditor, its map in GroupMap.
class frmGroups : public QDialog {
    Q_OBJECT

public:
    /// `DataType` as OpenGroupTools gives it.
    explicit frmGroups(long DataType, QWidget* parent = nullptr);

    GroupEditor& editor() { return editor_; }
    MapSurfaceWidget* MapSurface1() const { return mapSurface1_; }

    /// Exit, Escape and the window's own button: asks where changes would be lost.
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Work; // the form is disabled as long as one lives

    void makeLinks();
    void makeMenu();
    QWidget* groupPanel();
    QWidget* saveStatus();
    void arrange();
    void connectControls();
    void connectMap();

    void DisableForm(bool disable); ///< calls nest
    void enableControls();
    void populateList();
    void refresh(); ///< what depends on groups, selection or tool
    void follow(EditorStep step);
    void createMap();
    void leave();

    void tvGroups_SelectionChanged();
    void cmdAddGroup_Click();
    void cmdSave_Click();
    void areaClicked(long entity);
    void callAreaClicked(const std::string& area);
    void changeArea(const std::string& area, QPoint menuAt);
    void drawingBegins();
    void areasDrawn(const std::vector<long>& entities);
    std::optional<GroupAction> chooseAction(QPoint at);
    MembershipQuery query();
    QPoint pointerOnMap() const; ///< global; the middle of the map where the keyboard points
    bool inDrawingTool() const;
    void showRedrawn();
    void placePanels();

    GroupEditor editor_;
    MapSurfaceWidget* mapSurface1_;
    GroupMap map_;

    uctHeader* uctHeader1;
    uctFooter* uctFooter1;
    QLabel* lblGroups;
    QTreeWidget* tvGroups;
    QLabel* lblHint;
    ucWebbyLink* cmdAddGroup = nullptr;
    ucWebbyLink* cmdDeleteGroup = nullptr;
    ucWebbyLink* cmdDeleteAll = nullptr;
    ucWebbyLink* lblSave = nullptr;
    ucWebbyLink* lblCancel = nullptr;
    CallAreaPanel* fraOtherCallAreas;
    QFrame* fraSaveStatus = nullptr;
    QLabel* lblGroupStatus = nullptr;
    QLabel* lblSaveStatus = nullptr;
    QMenu* mnuGroup = nullptr;
    int works_ = 0;
    bool mapWanted_ = true;    ///< until the window has been shown
    bool drawingTold_ = false; ///< by the query; the release that follows adds nothing
};
