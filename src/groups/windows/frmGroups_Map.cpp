#include "core/Progress.h"
#include "groups/windows/CallAreaPanel.h"
#include "groups/windows/frmGroupSaveQuery.h"
#include "groups/windows/frmGroupSelection.h"
#include "groups/windows/frmGroupsWork.h"
#include "map/surface/windows/MapSurfaceWidget.h"
#include "ui/WindowProgress.h"
#include "ui/ucWebbyLink.h"

#include <QCursor>
#include <QEvent>
#include <QMenu>
#include <QShowEvent>
#include <QTimer>

namespace {

constexpr int edge = 16;
constexpr int leftButton = 1;

} // namespace

void frmGroups::connectMap() {
    // Behind the click: a menu or a message must not stand in the middle of it.
    const auto afterwards = [this](auto act) { QTimer::singleShot(0, this, std::move(act)); };
    connect(mapSurface1_, &MapSurfaceWidget::ToolBarClick, this, [this](long tool) {
        map_.toolBarClicked(tool);
        placePanels();
    });
    connect(mapSurface1_, &MapSurfaceWidget::viewChanged, this, [this] { map_.viewChanged(); });
    connect(mapSurface1_, &MapSurfaceWidget::MapEntityInfo, this,
            [this, afterwards](short, long entity) { afterwards([this, entity] { areaClicked(entity); }); });
    connect(mapSurface1_, &MapSurfaceWidget::MapMouseDown, this, [this, afterwards](int button) {
        drawingTold_ = false;
        map_.mouseDown(button);
        if (inDrawingTool() && button == leftButton)
            afterwards([this] { drawingBegins(); });
    });
    connect(mapSurface1_, &MapSurfaceWidget::MapGeoQuery, this,
            [this, afterwards](short, const std::vector<int>&, const std::vector<long>& entities) {
                drawingTold_ = true;
                afterwards([this, entities] { areasDrawn(entities); });
            });
    connect(mapSurface1_, &MapSurfaceWidget::MapMouseUp, this, [this, afterwards](int button) {
        if (inDrawingTool() && button == leftButton && !std::exchange(drawingTold_, false))
            afterwards([this] { areasDrawn({}); });
    });
    connect(fraOtherCallAreas, &CallAreaPanel::chosen, this, [this, afterwards](const QString& area) {
        afterwards([this, area] { callAreaClicked(area.toStdString()); });
    });
}

void frmGroups::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (std::exchange(mapWanted_, false))
        QTimer::singleShot(0, this, [this] {
            const Work work(*this);
            createMap();
            refresh();
        });
}

bool frmGroups::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        placePanels();
    return QDialog::eventFilter(watched, event);
}

void frmGroups::createMap() {
    const Hourglass hourglass;
    map_.CreateMap();
}

bool frmGroups::inDrawingTool() const {
    return mapSurface1_->surface().UIMode() == MapTool::PolygonQuery;
}

void frmGroups::placePanels() {
    fraOtherCallAreas->setVisible(mapSurface1_->surface().UIMode() == MapTool::Information);
    fraOtherCallAreas->adjustSize();
    fraOtherCallAreas->move(edge, mapSurface1_->canvas().height() - fraOtherCallAreas->height() - edge);
}

void frmGroups::showRedrawn() {
    {
        const Hourglass hourglass;
        map_.redraw();
    }
    refresh();
}

QPoint frmGroups::pointerOnMap() const {
    const QWidget& canvas = mapSurface1_->canvas();
    const QPoint pointer = QCursor::pos();
    return canvas.rect().contains(canvas.mapFromGlobal(pointer)) ? pointer : canvas.mapToGlobal(canvas.rect().center());
}

std::optional<GroupAction> frmGroups::chooseAction(QPoint at) {
    const auto named = [this](const char* name) { return mnuGroup->findChild<QAction*>(QString::fromLatin1(name)); };
    named("mnuChangeGroupColour")->setVisible(false);
    const QAction* chosen = mnuGroup->exec(at);
    if (chosen && chosen == named("mnuGroupAddArea"))
        return GroupAction::Add;
    if (chosen && chosen == named("mnuGroupDeleteArea"))
        return GroupAction::Remove;
    return std::nullopt;
}

MembershipQuery frmGroups::query() {
    return [this](const std::string& Reference, const std::string& GroupName, bool Adding) {
        const PlainPointer pointer;
        MembershipAnswer answer = MembershipAnswer::None;
        frmGroupSaveQuery(this).QueryUser(Reference, GroupName, Adding, answer);
        return answer;
    };
}

void frmGroups::areaClicked(long entity) {
    if (works_ > 0)
        return;
    const Work work(*this);
    if (const auto area = editor_.areaClicked(entity))
        changeArea(*area, pointerOnMap());
}

void frmGroups::callAreaClicked(const std::string& area) {
    if (works_ > 0)
        return;
    const Work work(*this);
    const auto* link = findChild<ucWebbyLink*>(QStringLiteral("ucwl%1Text").arg(QString::fromStdString(area)));
    if (editor_.requireSelection())
        changeArea(area, link->mapToGlobal(link->rect().bottomLeft()));
}

void frmGroups::changeArea(const std::string& area, QPoint menuAt) {
    const auto action = chooseAction(menuAt);
    if (!action)
        return;
    editor_.changeArea(*action, area, query());
    showRedrawn();
}

void frmGroups::drawingBegins() {
    if (works_ > 0)
        return;
    const Work work(*this);
    editor_.requireSelection();
}

void frmGroups::areasDrawn(const std::vector<long>& entities) {
    if (works_ > 0 || editor_.selectedName().empty())
        return; // without a group the user was told when he began to draw
    const Work work(*this);
    const auto action = chooseAction(pointerOnMap());
    if (!action)
        return;
    const auto areas = editor_.areasDrawn(*action, entities);
    if (areas.empty())
        return;
    frmGroupSelection selection(*action, areas, this);
    if (selection.exec() != QDialog::Accepted)
        return;
    editor_.changeAreas(*action, selection.checkedAreas(), query());
    showRedrawn();
}
