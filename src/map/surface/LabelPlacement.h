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

    /// The box of a label of `size` at `anchor`, moved just inside the view where it would stick out. Nothing where its
    /// anchor is out of view, or where `dropOnCollision` is set and the box would touch a label that already stands.
    std::optional<QRectF> place(const QSizeF& size, const QPointF& anchor, LabelJustification justification,
                                LabelBaseline baseline, bool dropOnCollision);

private:
    QRectF view_;
    double gap_;
    std::vector<QRectF> taken_;
};
