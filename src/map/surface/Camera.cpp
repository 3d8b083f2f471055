#include "map/surface/Camera.h"

#include <algorithm>
#include <cmath>

namespace {

/// Share of the view left free on each side of what showAll() shows.
constexpr double Margin = 0.03;

} // namespace

void Camera::setCenter(QPointF mapPoint) {
    if (std::isfinite(mapPoint.x()) && std::isfinite(mapPoint.y()))
        center_ = mapPoint;
}

void Camera::setScale(double mapUnits) {
    if (std::isfinite(mapUnits))
        scale_ = std::clamp(mapUnits, SmallestScale, LargestScale);
}

void Camera::setPixelSize(QSize pixels) {
    pixelSize_ = pixels.expandedTo(QSize(1, 1));
}

QPointF Camera::mapToScreen(QPointF mapPoint) const {
    const double pixelsPerUnit = pixelSize_.width() / scale_;
    return {pixelSize_.width() / 2.0 + (mapPoint.x() - center_.x()) * pixelsPerUnit,
            pixelSize_.height() / 2.0 - (mapPoint.y() - center_.y()) * pixelsPerUnit};
}

QPointF Camera::screenToMap(QPointF screenPoint) const {
    return {center_.x() + (screenPoint.x() - pixelSize_.width() / 2.0) * unitsPerPixel(),
            center_.y() - (screenPoint.y() - pixelSize_.height() / 2.0) * unitsPerPixel()};
}

QRectF Camera::visibleMap() const {
    const double height = pixelSize_.height() * unitsPerPixel();
    return {center_.x() - scale_ / 2.0, center_.y() - height / 2.0, scale_, height};
}

void Camera::showAll(const QRectF& mapBounds) {
    setCenter(mapBounds.center());
    const double widthForHeight = mapBounds.height() * pixelSize_.width() / pixelSize_.height();
    const double width = std::max(mapBounds.width(), widthForHeight) / (1.0 - 2.0 * Margin);
    if (width > 0.0)
        setScale(width);
}

void Camera::zoomAbout(QPointF screenPoint, double factor) {
    if (!std::isfinite(factor) || factor <= 0.0)
        return;
    const QPointF kept = screenToMap(screenPoint);
    setScale(scale_ / factor);
    setCenter(center_ + kept - screenToMap(screenPoint));
}

void Camera::moveBy(QPointF pixels) {
    setCenter(center_ + QPointF(pixels.x(), -pixels.y()) * unitsPerPixel());
}
