#pragma once

#include "map/surface/HitTest.h"
#include "map/surface/Sketch.h"
#include "map/surface/ViewHistory.h"

#include <QObject>
#include <QPointF>
#include <QRectF>

#include <optional>
#include <vector>

class MapSurface;

/// The tools in the user's hand: turns presses, moves and keys into changes of a surface's view, into figures drawn on
/// it and into its events. Positions are device pixels of the map. Draws nothing; the canvas shows what it holds. Main
/// thread.
class MapPointer : public QObject {
    Q_OBJECT

public:
    explicit MapPointer(MapSurface& surface, QObject* parent = nullptr);

    void press(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPointF pixel);
    /// `buttons`: those that are down. A drag whose release went elsewhere, to a message perhaps, ends here.
    void move(QPointF pixel, Qt::MouseButtons buttons);
    void release(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPointF pixel);
    void doubleClick(); ///< behind the press of the second click
    void leave();
    void turnWheel(double eighthsOfDegrees, QPointF pixel);
    void pinch(double factor, QPointF pixel);
    /// Tells whether the key means anything to the map.
    bool pressKey(int key, Qt::KeyboardModifiers modifiers);
    /// What a button of the tool bar does.
    void chooseTool(MapTool tool);

    /// Another tool is in hand: a figure in the making ends, a measured distance goes.
    void toolChanged();
    /// A draw has ended: the view goes into the history, and the area under the pointer is looked for anew.
    void pictureDrawn();

    const std::optional<MapHit>& hover() const { return hover_; }
    QPointF position() const { return position_; }
    bool aimsAtCentre() const { return aimsAtCentre_; } ///< the keyboard points at the middle of the view
    bool isDragging() const { return drag_ == Drag::Pan; }
    std::optional<QRectF> zoomBox() const; ///< being drawn
    const SketchPad& sketches() const { return pad_; }

    double devicePixelRatio = 1.0;

signals:
    void MapMouseDown(int button, int shift, double x, double y);
    void MapMouseUp(int button, int shift, double x, double y);
    void Click();
    void MapEntityInfo(short layer, long entity);
    void MapGeoQuery(short count, const std::vector<int>& layers, const std::vector<long>& entities);
    void ToolBarClick(long tool);
    void viewChanged();         ///< by the user, before it is drawn
    void drawWanted(int delay); ///< milliseconds in which more changes are likely
    void changed();             ///< something to be repainted: hover, box, figures, a moved picture

private:
    enum class Drag { None, Armed, Pan, ZoomBox, Stroke };

    void giveUpDrag();
    void act(QPointF pixel);
    void endDrag(QPointF pixel);
    void clickAtCentre();
    void tellInformation(QPointF pixel);
    void tellQuery(const QPolygonF& mapOutline);
    void panBy(QPoint pixels);
    void drawAfter(int delay); ///< tells the changed view and asks for a draw
    void goBack();
    void hoverAt(QPointF pixel);
    QPointF mapPoint(QPointF pixel) const;

    MapSurface& surface_;
    SketchPad pad_;
    ViewHistory history_;
    std::optional<MapHit> hover_;
    QPointF position_;
    bool inside_ = false; // whether position_ is the pointer's
    bool aimsAtCentre_ = false;
    Drag drag_ = Drag::None;
    Qt::MouseButton dragButton_ = Qt::NoButton;
    bool spent_ = false; // the press has been answered by a change of the view; the tool does not act on it
    QPointF dragStart_;
};
