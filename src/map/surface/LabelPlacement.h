#pragma once

#include "map/surface/Scene.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

/// Finds room for the labels of a map, one after the other: who comes first stays. Knows no view, so that the labels of
/// one scale stand the same wherever the view lies. Device pixels, y downwards, from any origin.
class LabelPlacement {
public:
    /// `gap`: pixels kept free between two labels.
    explicit LabelPlacement(double gap = 2.0) : gap_(gap) {}

    /// The box of a label of `size` at `anchor`. With `avoidCollisions` a label that would touch another moves a little
    /// to one side, and is dropped where that does not help: then there is no box.
    std::optional<QRectF> place(const QSizeF& size, const QPointF& anchor, LabelJustification justification,
                                LabelBaseline baseline, bool avoidCollisions);

private:
    /// Calls `visit` with the key of every cell that a box touches, until it says false. False where it did.
    template<typename Visit>
    static bool visitCells(const QRectF& box, Visit visit);
    bool collides(const QRectF& box) const;
    void take(const QRectF& box);

    double gap_;
    std::vector<QRectF> taken_;
    std::unordered_map<std::uint64_t, std::vector<std::uint32_t>> cells_; // positions in taken_
};
