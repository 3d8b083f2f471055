#include "map/surface/windows/MapCanvas.h"

#include "map/surface/AreaText.h"
#include "map/surface/MapSurface.h"
#include "map/surface/windows/ToolIcons.h"
#include "ui/Skin.h"

#include <QGestureEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QPinchGesture>

namespace {

constexpr int CursorSide = 24;
constexpr double FocusWidth = 2.0;

/// The sign of a tool with a light rim, so that it is seen on every colour. Its hot spot is the lens.
QCursor lensCursor(MapTool tool, double ratio) {
    QPixmap pixmap(QSize(CursorSide, CursorSide) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const QRectF box(0, 0, CursorSide, CursorSide);
    for (const QPointF& step : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)})
        paintToolSign(painter, box.translated(step), tool, Qt::white);
    paintToolSign(painter, box, tool, toColor(skinColours().Grey(6)));
    return QCursor(pixmap, CursorSide * 10 / 24, CursorSide * 10 / 24);
}

} // namespace

MapCanvas::MapCanvas(MapSurface& surface, QWidget* parent) : QWidget(parent), surface_(surface), pointer_(surface) {
    setObjectName(QStringLiteral("Canvas"));
    setAccessibleName(tr("Map"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    grabGesture(Qt::PinchGesture);
    connect(&pointer_, &MapPointer::changed, this, &MapCanvas::pointerChanged);
    showTool();
}

void MapCanvas::pictureDrawn() {
    pointer_.pictureDrawn();
    update();
}

void MapCanvas::pointerChanged() {
    tellHover();
    showTool();
    update();
}

void MapCanvas::tellHover() {
    QString name, value;
    if (const auto& hit = pointer_.hover()) {
        name = QString::fromStdString(areaName(surface_.drawn(), *hit));
        value = QString::fromStdString(areaValue(surface_.drawn(), *hit));
    }
    if (name == hoverName_ && value == hoverValue_)
        return;
    hoverName_ = name;
    hoverValue_ = value;
    setAccessibleDescription(value.isEmpty() ? name : name + QStringLiteral(": ") + value);
    emit hovered(name, value);
}

void MapCanvas::showTool() {
    const MapTool tool = surface_.UIMode();
    const PointerLook look{tool, pointer_.isDragging(), pointer_.hover().has_value(), devicePixelRatioF()};
    if (look == shownLook_) // asked for at every move of the mouse
        return;
    shownLook_ = look;
    if (pointer_.isDragging())
        setCursor(Qt::ClosedHandCursor);
    else if (tool == MapTool::ZoomIn || tool == MapTool::ZoomOut)
        setCursor(lensCursor(tool, devicePixelRatioF()));
    else if (tool == MapTool::Pan)
        setCursor(Qt::OpenHandCursor);
    else if (SketchPad::draws(tool))
        setCursor(Qt::CrossCursor);
    else
        setCursor(pointer_.hover() ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void MapCanvas::paintEvent(QPaintEvent*) {
    const double ratio = devicePixelRatioF();
    QPainter painter(this);
    painter.scale(1.0 / ratio, 1.0 / ratio); // device pixels from here on
    const QRectF view(QPointF(0, 0), QSizeF(surface_.camera().pixelSize()));
    const QImage& picture = surface_.picture();
    if (picture.isNull() || surface_.drawn().camera != surface_.camera())
        painter.fillRect(view, surface_.style.sea);
    if (!picture.isNull()) {
        const Camera& shown = surface_.drawn().camera;
        if (shown == surface_.camera()) {
            painter.drawImage(0, 0, picture);
        } else {
            const QPointF topLeft = surface_.camera().mapToScreen(shown.screenToMap({0, 0}));
            const double factor = shown.unitsPerPixel() / surface_.camera().unitsPerPixel();
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.drawImage(QRectF(topLeft, QSizeF(picture.size()) * factor), picture);
        }
    }
    overlay_.paint(painter, surface_, pointer_);
    if (hasFocus() && keyboardFocus_) {
        painter.setPen(QPen(toColor(skinColours().Turquoise(5)), FocusWidth * ratio));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(view.adjusted(ratio, ratio, -ratio, -ratio));
    }
}

void MapCanvas::resizeEvent(QResizeEvent*) {
    fitPicture();
}

void MapCanvas::fitPicture() {
    const double ratio = devicePixelRatioF();
    const QSize pixels(qRound(width() * ratio), qRound(height() * ratio));
    // Once there is a picture, a larger window shows more of the map, not a larger map.
    const double share = (pixels.width() / ratio) / (surface_.camera().pixelSize().width() / pointer_.devicePixelRatio);
    const bool showsMore = !surface_.picture().isNull() && !surface_.showsWhole();
    surface_.setPixelSize(pixels);
    if (showsMore)
        surface_.setMapScale(surface_.MapScale() * share);
    surface_.style.devicePixelRatio = ratio;
    pointer_.devicePixelRatio = ratio;
    if (!surface_.picture().isNull())
        emit pointer_.drawWanted(0);
    update();
}

bool MapCanvas::event(QEvent* event) {
    if (event->type() == QEvent::ScreenChangeInternal && devicePixelRatioF() != pointer_.devicePixelRatio)
        fitPicture();
    if (event->type() == QEvent::Gesture || event->type() == QEvent::NativeGesture)
        return handleGesture(event);
    return QWidget::event(event);
}

bool MapCanvas::handleGesture(QEvent* event) {
    const double ratio = devicePixelRatioF();
    if (event->type() == QEvent::NativeGesture) {
        const auto* gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() != Qt::ZoomNativeGesture)
            return QWidget::event(event);
        pointer_.pinch(1.0 + gesture->value(), gesture->position() * ratio);
        return true;
    }
    auto* pinch = static_cast<QPinchGesture*>(static_cast<QGestureEvent*>(event)->gesture(Qt::PinchGesture));
    if (pinch == nullptr)
        return QWidget::event(event);
    pointer_.pinch(pinch->scaleFactor(), QPointF(mapFromGlobal(pinch->centerPoint().toPoint())) * ratio);
    return true;
}

void MapCanvas::mousePressEvent(QMouseEvent* event) {
    keyboardFocus_ = false;
    pointer_.press(event->button(), event->modifiers(), event->position() * devicePixelRatioF());
}

void MapCanvas::mouseMoveEvent(QMouseEvent* event) {
    pointer_.move(event->position() * devicePixelRatioF(), event->buttons());
}

void MapCanvas::mouseReleaseEvent(QMouseEvent* event) {
    pointer_.release(event->button(), event->modifiers(), event->position() * devicePixelRatioF());
}

void MapCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    if (event->button() == Qt::LeftButton)
        pointer_.doubleClick();
}

void MapCanvas::leaveEvent(QEvent*) {
    pointer_.leave();
}

void MapCanvas::wheelEvent(QWheelEvent* event) {
    pointer_.turnWheel(event->angleDelta().y(), event->position() * devicePixelRatioF());
    event->accept();
}

void MapCanvas::keyPressEvent(QKeyEvent* event) {
    if (!pointer_.pressKey(event->key(), event->modifiers()))
        return QWidget::keyPressEvent(event);
    keyboardFocus_ = true;
    update();
}

void MapCanvas::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason)
        keyboardFocus_ = true;
    update();
}

void MapCanvas::focusOutEvent(QFocusEvent*) {
    lostFocusDisabled_ = !isEnabled();
    pointer_.leave();
    update();
}

/// A window disables its map while it works. The keys come back to the map afterwards.
void MapCanvas::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::EnabledChange || !isEnabled())
        return;
    if (lostFocusDisabled_ && window()->focusWidget() == nullptr)
        setFocus(Qt::OtherFocusReason);
    lostFocusDisabled_ = false;
}
