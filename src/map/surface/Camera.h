#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

/// The view of a map: which part of the country is seen on how many pixels. A value; knows no widget and no layer.
/// Map units are ten metres on the British National Grid with y to the north; screen units are device pixels from the
/// top left corner with y downwards.
class Camera {
public:
    /// The smallest and largest width of a view, in map units: a street, and far beyond the country.
    static constexpr double SmallestScale = 1.0;
    static constexpr double LargestScale = 1e7;

    QPointF center() const { return center_; }     ///< map units
    double scale() const { return scale_; }        ///< width of the view in map units; larger means further out
    QSize pixelSize() const { return pixelSize_; } ///< device pixels, at least 1 x 1

    void setCenter(QPointF mapPoint); ///< a coordinate that is no number is ignored
    void setScale(double mapUnits);   ///< kept between SmallestScale and LargestScale
    void setPixelSize(QSize pixels);  ///< centre and scale stay

    double unitsPerPixel() const { return scale_ / pixelSize_.width(); }
    QPointF mapToScreen(QPointF mapPoint) const;
    QPointF screenToMap(QPointF screenPoint) const;
    /// The part of the map that is seen: x and y are the low corner in map units.
    QRectF visibleMap() const;

    /// Moves and scales so that all of `mapBounds` is seen with a margin round it. A box without extent keeps the
    /// scale.
    void showAll(const QRectF& mapBounds);

    /// Divides the scale by `factor`; the point of the map under `screenPoint` stays where it is.
    void zoomAbout(QPointF screenPoint, double factor);
    /// Moves the view so that what lies `pixels` to the right and below comes to where it was.
    void moveBy(QPointF pixels);

    friend bool operator==(const Camera&, const Camera&) = default;

private:
    QPointF center_{33000.0, 61000.0}; // the middle of the British Isles
    double scale_ = 170000.0;
    QSize pixelSize_{800, 600};
};
