#include "map/surface/windows/MapSurfaceWidget.h"

#include "core/LogAndGoOn.h"
#include "map/surface/windows/MapCanvas.h"
#include "map/surface/windows/MapToolBar.h"
#include "map/surface/windows/ToolIcons.h"

#include <QEvent>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int BringBackGap = 8;
constexpr const char* EveryTool =
    ":BUTTON_VISIBLE:1,1,1,1,1,1,1,1,1,1,1,1,1,1,:TOOLTIPS:Zoom Extent,Pan,Zoom In,Zoom Out,Measure,Information,"
    "Polygon Query,Circle Query,Draw Point,Draw Polyline,Draw Polygon,Draw Circle,Hide Toolbar,Go Back,";

} // namespace

MapSurfaceWidget::MapSurfaceWidget(QWidget* parent) : MapSurfaceWidget(std::make_shared<GeometryCache>(), parent) {}

MapSurfaceWidget::MapSurfaceWidget(std::shared_ptr<GeometryCache> geometry, QWidget* parent)
    : QWidget(parent), surface_(std::move(geometry)), toolBar_(new MapToolBar(this)),
      canvas_(new MapCanvas(surface_, this)), bringBack_(new QToolButton(canvas_)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(toolBar_);
    layout->addWidget(canvas_, 1);
    setFocusProxy(canvas_);

    bringBack_->setObjectName(QStringLiteral("ShowToolBar"));
    bringBack_->setIcon(toolIcon(MapTool::HideToolBar));
    bringBack_->setToolTip(tr("Show Toolbar"));
    bringBack_->setAccessibleName(bringBack_->toolTip());
    bringBack_->setCursor(Qt::ArrowCursor);
    bringBack_->move(BringBackGap, BringBackGap);
    connect(bringBack_, &QToolButton::clicked, this, [this] { surface_.setShowToolBar(true); });

    surface_.DrawMapStarted = [this] {
        drawTimer_.stop();
        drawWaits_ = false;
        emit DrawMapStarted();
    };
    surface_.DrawMapFinished = [this] {
        canvas_->pictureDrawn();
        emit DrawMapFinished();
    };
    surface_.ToolsChanged = [this] { showTools(); };
    surface_.Repaint = [this] { canvas_->update(); };
    surface_.setToolBarSetup(EveryTool);

    drawTimer_.setSingleShot(true);
    connect(&drawTimer_, &QTimer::timeout, this, &MapSurfaceWidget::drawWanted);
    connect(toolBar_, &MapToolBar::chosen, &canvas_->pointer(), &MapPointer::chooseTool);
    // A press on the tool in hand would let it go: the bar is told again what is in hand.
    connect(toolBar_, &MapToolBar::chosen, this, &MapSurfaceWidget::showTools);
    connect(canvas_, &MapCanvas::hovered, this, &MapSurfaceWidget::hovered);
    connectPointer();
}

MapSurfaceWidget::~MapSurfaceWidget() {
    delete canvas_; // while the surface is there
}

void MapSurfaceWidget::connectPointer() {
    MapPointer* pointer = &canvas_->pointer();
    connect(pointer, &MapPointer::MapMouseDown, this, &MapSurfaceWidget::MapMouseDown);
    connect(pointer, &MapPointer::MapMouseUp, this, &MapSurfaceWidget::MapMouseUp);
    connect(pointer, &MapPointer::Click, this, &MapSurfaceWidget::Click);
    connect(pointer, &MapPointer::MapEntityInfo, this, &MapSurfaceWidget::MapEntityInfo);
    connect(pointer, &MapPointer::MapGeoQuery, this, &MapSurfaceWidget::MapGeoQuery);
    connect(pointer, &MapPointer::ToolBarClick, this, &MapSurfaceWidget::ToolBarClick);
    connect(pointer, &MapPointer::viewChanged, this, &MapSurfaceWidget::viewChanged);
    connect(pointer, &MapPointer::drawWanted, this, &MapSurfaceWidget::wantDraw);
}

QWidget& MapSurfaceWidget::canvas() {
    return *canvas_;
}

QImage MapSurfaceWidget::shownPicture() {
    if (drawTimer_.isActive())
        drawWanted();
    return surface_.picture();
}

void MapSurfaceWidget::wantDraw(int delay) {
    drawTimer_.start(delay);
}

void MapSurfaceWidget::drawWanted() {
    drawTimer_.stop();
    if (!isEnabled()) {
        drawWaits_ = true; // the window is building layers and draws them itself
        return;
    }
    logAndGoOn([&] { surface_.DrawMap(); });
}

void MapSurfaceWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && isEnabled() && std::exchange(drawWaits_, false))
        wantDraw(0);
}

void MapSurfaceWidget::showTools() {
    toolBar_->showTools(surface_.toolBar(), surface_.UIMode());
    toolBar_->setVisible(surface_.ShowToolBar());
    bringBack_->setVisible(!surface_.ShowToolBar());
    canvas_->pointer().toolChanged();
    canvas_->showTool();
    canvas_->update();
}
