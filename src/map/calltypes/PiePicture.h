#pragma once

#include "map/calltypes/CallTypeSplit.h"

#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>

class QPainter;

/// The pie of a CallTypeSplit with its titles and its legend, laid out in a rectangle. Drawn by the window and into
/// reports alike. Lengths and texts are in the units of the rectangle, logical pixels. Main thread.
class PiePicture {
public:
    PiePicture(CallTypeSplit split, QRectF area, QString fontFamily);

    void paint(QPainter& painter) const;

    /// The series under a point, of the pie or of its legend.
    std::optional<std::size_t> seriesAt(QPointF point) const;

    /// "Mobile: 1,234 (12.3 %)".
    QString seriesText(std::size_t series) const;
    /// All of it in words, for who cannot see it.
    QString text() const;

    /// The heading of every such pie.
    static QString heading();

private:
    double share(std::size_t series) const; ///< of the whole, 0 to 1; negative values count as nothing
    QRectF legendLine(std::size_t series) const;
    void paintPie(QPainter& painter) const;
    void paintLegend(QPainter& painter) const;

    CallTypeSplit split_;
    QRectF area_;
    QRectF pie_; ///< square
    QString family_;
    double drawn_ = 0; ///< sum of what is drawn
};
