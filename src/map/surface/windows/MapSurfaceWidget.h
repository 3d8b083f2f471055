#pragma once

#include "map/surface/MapSurface.h"

#include <QTimer>
#include <QWidget>

#include <vector>

class MapCanvas;
class MapToolBar;
class QToolButton;

/// A map as a control of a window: a surface, its tool bar and its tools. Logic that describes layers is given
/// surface(); the surface's own hooks are taken by the control and come as signals.
///
/// A change of the view by the user is shown at once by the last picture and drawn sharply soon after, when the window
/// leaves the control enabled: while it is disabled nothing is drawn but by DrawMap. Order of events: a press gives
/// MapMouseDown; a view that its handler sets is kept, and the tool does not act on that click. A release lets the tool
/// act (MapEntityInfo, MapGeoQuery), then gives MapMouseUp, then Click, and then draws the view as the handlers left
/// it. A button of the tool bar acts, gives ToolBarClick, then draws.
class MapSurfaceWidget : public QWidget {
    Q_OBJECT

public:
    explicit MapSurfaceWidget(QWidget* parent = nullptr);
    /// One of several maps that share the shapes they draw.
    MapSurfaceWidget(std::shared_ptr<GeometryCache> geometry, QWidget* parent);
    ~MapSurfaceWidget() override;

    MapSurface& surface() { return surface_; }
    const MapSurface& surface() const { return surface_; }
    MapToolBar& toolBar() { return *toolBar_; }
    /// The part that shows the picture; for a window that lays something over it.
    QWidget& canvas();
    /// What the canvas shows now, for a picture of the window: a draw that still waits is done first.
    QImage shownPicture();

signals:
    void DrawMapStarted();
    void DrawMapFinished();
    void Click();
    /// Layer and identifier of the area that was clicked with the Information tool; -1 and -1 at sea.
    void MapEntityInfo(short layer, long entity);
    /// The areas of which at least half lies in the outline that was drawn; not told where there are none. Both lists
    /// have `count` items.
    void MapGeoQuery(short count, const std::vector<int>& layers, const std::vector<long>& entities);
    void ToolBarClick(long tool);
    /// Button 1 left, 2 right, 4 middle; shift 1, control 2, alt 4; interface pixels of the canvas.
    void MapMouseDown(int button, int shift, double x, double y);
    void MapMouseUp(int button, int shift, double x, double y);

    /// The area under the pointer; both empty over the sea.
    void hovered(const QString& name, const QString& value);
    /// The user has moved or scaled the view by whatever means. It is not drawn yet, so layers can be shown or hidden
    /// to fit it.
    void viewChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    void connectPointer();
    void wantDraw(int delay);
    void drawWanted();
    void showTools();

    MapSurface surface_;
    MapToolBar* toolBar_;
    MapCanvas* canvas_;
    QToolButton* bringBack_; // shows the tool bar again once it is hidden
    QTimer drawTimer_;
    bool drawWaits_ = false; // until the control is enabled
};
