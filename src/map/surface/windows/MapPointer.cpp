#include "map/surface/windows/MapPointer.h"

#include "core/LogAndGoOn.h"
#include "map/surface/MapSurface.h"

#include <QGuiApplication>
#include <QPointer>
#include <QStyleHints>

#include <cmath>

namespace {

constexpr double ClickZoom = 2.0;
constexpr double KeyZoom = 1.5;
constexpr double NotchZoom = 1.3;
constexpr double NotchOfWheel = 120.0;
constexpr double SmallStep = 0.1; ///< of the view, by an arrow key
constexpr double LargeStep = 0.5; ///< with Shift
// Milliseconds. While views follow each other quickly the last picture is shown scaled.
constexpr int AtOnce = 0;
constexpr int AfterGesture = 90;
constexpr int AfterKey = 120;

bool pans(MapTool tool, Qt::MouseButton button) {
    return button == Qt::MiddleButton || tool == MapTool::Pan || tool == MapTool::Information ||
           tool == MapTool::ZoomOut;
}

int buttonCode(Qt::MouseButton button) {
    return button == Qt::LeftButton ? 1 : button == Qt::RightButton ? 2 : button == Qt::MiddleButton ? 4 : 0;
}

int shiftCode(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
           (modifiers & Qt::AltModifier ? 4 : 0);
}

} // namespace

MapPointer::MapPointer(MapSurface& surface, QObject* parent) : QObject(parent), surface_(surface) {}

QPointF MapPointer::mapPoint(QPointF pixel) const {
    return surface_.camera().screenToMap(pixel);
}

void MapPointer::press(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPointF pixel) {
    position_ = pixel;
    aimsAtCentre_ = false;
    if (button == dragButton_)
        giveUpDrag();
    const Camera before = surface_.camera();
    const QPointer<MapPointer> alive(this); // what is told may close the window
    emit MapMouseDown(buttonCode(button), shiftCode(modifiers), pixel.x() / devicePixelRatio,
                      pixel.y() / devicePixelRatio);
    if (!alive || drag_ != Drag::None || (button != Qt::LeftButton && button != Qt::MiddleButton))
        return;
    drag_ = Drag::Armed;
    dragButton_ = button;
    dragStart_ = pixel;
    spent_ = surface_.camera() != before;
    if (!spent_ && button == Qt::LeftButton && SketchPad::draws(surface_.UIMode())) {
        drag_ = Drag::Stroke;
        pad_.press(surface_.UIMode(), mapPoint(pixel));
        emit changed();
    }
}

void MapPointer::giveUpDrag() {
    const Drag ended = std::exchange(drag_, Drag::None);
    if (ended == Drag::Stroke && pad_.current() && SketchPad::drawsInOneStroke(pad_.current()->tool))
        pad_.clear();
    else if (ended == Drag::Pan)
        drawAfter(AtOnce);
}

void MapPointer::move(QPointF pixel, Qt::MouseButtons buttons) {
    if (drag_ != Drag::None && !(buttons & dragButton_))
        giveUpDrag();
    const QPointF from = std::exchange(position_, pixel);
    inside_ = true;
    aimsAtCentre_ = false;
    if (drag_ == Drag::Armed && !spent_) {
        const double reach = QGuiApplication::styleHints()->startDragDistance() * devicePixelRatio;
        if (QPointF way = pixel - dragStart_; std::abs(way.x()) + std::abs(way.y()) >= reach) {
            if (pans(surface_.UIMode(), dragButton_))
                drag_ = Drag::Pan;
            else if (surface_.UIMode() == MapTool::ZoomIn)
                drag_ = Drag::ZoomBox;
            if (drag_ == Drag::Pan)
                panBy((dragStart_ - pixel).toPoint());
        }
    } else if (drag_ == Drag::Pan) {
        panBy(from.toPoint() - pixel.toPoint());
    }
    pad_.move(mapPoint(pixel));
    if (drag_ == Drag::None)
        hoverAt(pixel);
    if (drag_ != Drag::None || pad_.current())
        emit changed();
}

void MapPointer::release(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPointF pixel) {
    position_ = pixel;
    const bool ends = drag_ != Drag::None && button == dragButton_;
    const QPointer<MapPointer> alive(this);
    if (ends)
        endDrag(pixel);
    if (alive)
        emit MapMouseUp(buttonCode(button), shiftCode(modifiers), pixel.x() / devicePixelRatio,
                        pixel.y() / devicePixelRatio);
    if (!alive || !ends || button != Qt::LeftButton)
        return;
    emit Click();
    if (alive && surface_.needsDraw())
        emit drawWanted(AtOnce);
}

void MapPointer::endDrag(QPointF pixel) {
    const auto box = zoomBox();
    const Drag ended = std::exchange(drag_, Drag::None);
    const auto outline = ended == Drag::Stroke ? pad_.release() : std::nullopt;
    hoverAt(pixel);
    emit changed();
    if (ended == Drag::Pan) {
        drawAfter(AtOnce);
    } else if (ended == Drag::ZoomBox) {
        surface_.CentreMapOn(mapPoint(box->center()).x(), mapPoint(box->center()).y());
        const QSizeF view = surface_.camera().pixelSize();
        surface_.ZoomBy(
            std::min(view.width() / std::max(1.0, box->width()), view.height() / std::max(1.0, box->height())),
            QPointF(view.width(), view.height()) / 2.0);
        drawAfter(AtOnce);
    } else if (outline) {
        tellQuery(*outline);
    } else if (ended == Drag::Armed && !spent_ && dragButton_ == Qt::LeftButton) {
        act(pixel);
    }
}

void MapPointer::act(QPointF pixel) {
    switch (surface_.UIMode()) {
    case MapTool::ZoomIn:
        surface_.ZoomBy(ClickZoom, pixel);
        return drawAfter(AtOnce);
    case MapTool::ZoomOut:
        surface_.ZoomBy(1.0 / ClickZoom, pixel);
        return drawAfter(AtOnce);
    case MapTool::Information:
        return tellInformation(pixel);
    default:
        return;
    }
}

void MapPointer::tellInformation(QPointF pixel) {
    const auto hit = areaAt(surface_.drawn(), mapPoint(pixel));
    if (!hit)
        return emit MapEntityInfo(-1, -1);
    emit MapEntityInfo(static_cast<short>(hit->layer), static_cast<long>(shapeOf(surface_.drawn(), *hit).id));
}

void MapPointer::tellQuery(const QPolygonF& mapOutline) {
    std::vector<int> layers;
    std::vector<long> entities;
    for (const MapHit& hit : areasWithin(surface_.drawn(), mapOutline)) {
        layers.push_back(static_cast<int>(hit.layer));
        entities.push_back(static_cast<long>(shapeOf(surface_.drawn(), hit).id));
    }
    if (!entities.empty())
        emit MapGeoQuery(static_cast<short>(std::min<std::size_t>(entities.size(), 32767)), layers, entities);
}

void MapPointer::doubleClick() {
    pad_.finish();
    emit changed();
}

void MapPointer::leave() {
    inside_ = false;
    if (hover_ && !aimsAtCentre_) {
        hover_.reset();
        emit changed();
    }
}

void MapPointer::turnWheel(double eighthsOfDegrees, QPointF pixel) {
    pinch(std::pow(NotchZoom, eighthsOfDegrees / NotchOfWheel), pixel);
}

void MapPointer::pinch(double factor, QPointF pixel) {
    const Camera before = surface_.camera();
    surface_.ZoomBy(factor, pixel);
    if (surface_.camera() == before)
        return;
    hover_.reset();
    drawAfter(AfterGesture);
    emit changed();
}

bool MapPointer::pressKey(int key, Qt::KeyboardModifiers modifiers) {
    const QSizeF view = surface_.camera().pixelSize();
    const QPointF centre(view.width() / 2.0, view.height() / 2.0);
    const double step = (modifiers & Qt::ShiftModifier ? LargeStep : SmallStep) * std::min(view.width(), view.height());
    const auto pan = [&](double x, double y) {
        aimsAtCentre_ = true;
        panBy((QPointF(x, y) * step).toPoint());
        hoverAt(centre);
        drawAfter(AfterKey);
    };
    const auto zoom = [&](double factor) {
        aimsAtCentre_ = true;
        pinch(factor, centre);
    };
    switch (key) {
    case Qt::Key_Left:
        return modifiers & Qt::AltModifier ? chooseTool(MapTool::GoBack) : pan(-1, 0), true;
    case Qt::Key_Right:
        return pan(1, 0), true;
    case Qt::Key_Up:
        return pan(0, -1), true;
    case Qt::Key_Down:
        return pan(0, 1), true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoom(KeyZoom), true;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
        return zoom(1.0 / KeyZoom), true;
    case Qt::Key_Home:
        return chooseTool(MapTool::ZoomToExtent), true;
    case Qt::Key_Backspace:
        if (!pad_.takeBack())
            chooseTool(MapTool::GoBack);
        return emit changed(), true;
    case Qt::Key_Escape:
    case Qt::Key_Delete: {
        const bool any = pad_.clear();
        emit changed();
        return any;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return clickAtCentre(), true;
    default:
        return false;
    }
}

/// A key in place of the mouse: ends a figure in the making, else clicks in the middle of the view.
void MapPointer::clickAtCentre() {
    if (pad_.current()) {
        pad_.finish();
        return emit changed();
    }
    const QSizeF view = surface_.camera().pixelSize();
    const QPointF centre(view.width() / 2.0, view.height() / 2.0);
    const QPointer<MapPointer> alive(this);
    press(Qt::LeftButton, Qt::NoModifier, centre);
    if (alive)
        release(Qt::LeftButton, Qt::NoModifier, centre);
    if (!alive)
        return;
    aimsAtCentre_ = true;
    hoverAt(centre);
}

void MapPointer::chooseTool(MapTool tool) {
    const Camera before = surface_.camera();
    if (tool == MapTool::ZoomToExtent)
        logAndGoOn([&] { surface_.ZoomToWholeMap(); });
    else if (tool == MapTool::GoBack)
        goBack();
    else if (tool == MapTool::HideToolBar)
        surface_.setShowToolBar(false);
    else
        surface_.setUIMode(tool);
    if (surface_.camera() != before)
        emit viewChanged();
    const QPointer<MapPointer> alive(this);
    emit ToolBarClick(static_cast<long>(tool));
    if (!alive)
        return;
    if (tool == MapTool::ZoomToExtent || surface_.needsDraw())
        emit drawWanted(AtOnce);
}

void MapPointer::toolChanged() {
    const MapTool tool = surface_.UIMode();
    if (pad_.current() && pad_.current()->tool != tool)
        pad_.finish();
    if (tool != MapTool::Measure)
        pad_.forget(MapTool::Measure);
}

void MapPointer::goBack() {
    if (const auto view = history_.back())
        surface_.setCamera(*view);
}

void MapPointer::panBy(QPoint pixels) {
    surface_.PanBy(pixels);
    hover_.reset();
    emit changed();
}

void MapPointer::drawAfter(int delay) {
    emit viewChanged();
    emit drawWanted(delay);
}

void MapPointer::hoverAt(QPointF pixel) {
    const auto hit = surface_.drawn().contents.empty() ? std::nullopt : areaAt(surface_.drawn(), mapPoint(pixel));
    const bool other = hit != hover_;
    hover_ = hit;
    // The tip follows the pointer.
    if (other || hit)
        emit changed();
}

void MapPointer::pictureDrawn() {
    history_.record(surface_.drawn().camera);
    hover_.reset(); // its positions are those of the last picture
    const QSizeF view = surface_.camera().pixelSize();
    if (aimsAtCentre_)
        hoverAt(QPointF(view.width(), view.height()) / 2.0);
    else if (inside_ && drag_ == Drag::None)
        hoverAt(position_);
    emit changed();
}

std::optional<QRectF> MapPointer::zoomBox() const {
    if (drag_ != Drag::ZoomBox)
        return {};
    return QRectF(dragStart_, position_).normalized();
}
