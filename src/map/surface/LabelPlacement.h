#pragma once

#include "map/surface/Scene.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <optional>
#include <vector>

/// Finds room for the labels of one picture. Screen units: device pixels, y downwards.
class LabelPlacement {
public:
    /// `view`: the picture. `gap`: pixels kept free between two labels.
    explicit LabelPlacement(const QRectF& view, double gap = 2.0) : view_(view), gap_(gap) {}

    bool isInView(const QPointF& anchor) const { return view_.contains(anchor); }

    /// The box of a label of `size` at `anchor`, moved just inside the view where it would stick out. With
    /// `avoidCollisions` a label that would touch another moves a little to one side, and is dropped where that does
    /// not help: then, and where the anchor is out of view, there is no box.
    std::optional<QRectF> place(const QSizeF& size, const QPointF& anchor, LabelJustification justification,
                                LabelBaseline baseline, bool avoidCollisions);

private:
    QRectF movedIntoView(const QRectF& box) const;
    bool collides(const QRectF& box) const;

    QRectF view_;
    double gap_;
    std::vector<QRectF> taken_;
};
