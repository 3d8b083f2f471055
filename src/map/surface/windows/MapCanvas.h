#pragma once

#include "map/surface/windows/CanvasOverlay.h"
#include "map/surface/windows/MapPointer.h"

#include <QWidget>

class MapSurface;

/// The part of a map window that shows the picture. Hands what mouse, wheel, fingers and keys do to its MapPointer and
/// paints: the surface's last picture, moved and scaled to the present view where that has changed since, and what lies
/// over it. Never draws a map while painting.
class MapCanvas : public QWidget {
    Q_OBJECT

public:
    explicit MapCanvas(MapSurface& surface, QWidget* parent = nullptr);

    MapPointer& pointer() { return pointer_; }
    /// The surface's picture is a new one.
    void pictureDrawn();
    /// The pointer's look follows the tool in hand.
    void showTool();

    QSize sizeHint() const override { return {700, 500}; }
    QSize minimumSizeHint() const override { return {120, 90}; }

signals:
    void hovered(const QString& name, const QString& value); ///< both empty over the sea

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// What the look of the pointer depends on.
    struct PointerLook {
        MapTool tool;
        bool dragging, overArea;
        double devicePixelRatio;
        friend bool operator==(const PointerLook&, const PointerLook&) = default;
    };
    void fitPicture(); ///< to the widget's size and the screen's density
    void pointerChanged();
    void tellHover();
    bool handleGesture(QEvent* event);

    MapSurface& surface_;
    MapPointer pointer_;
    CanvasOverlay overlay_;
    QString hoverName_, hoverValue_;
    std::optional<PointerLook> shownLook_;
    bool keyboardFocus_ = false; // show where the keys go
    bool lostFocusDisabled_ = false;
};
