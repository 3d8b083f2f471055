#include "map/surface/LabelPlacement.h"

#include <algorithm>

namespace {

double leftOf(double anchor, double width, LabelJustification justification) {
    switch (justification) {
    case LabelJustification::Left:
        return anchor;
    case LabelJustification::Right:
        return anchor - width;
    case LabelJustification::Centre:
        break;
    }
    return anchor - width / 2.0;
}

double topOf(double anchor, double height, LabelBaseline baseline) {
    switch (baseline) {
    case LabelBaseline::Bottom:
        return anchor - height;
    case LabelBaseline::Top:
        return anchor;
    case LabelBaseline::Middle:
        break;
    }
    return anchor - height / 2.0;
}

/// `low` moved so that a stretch of `length` lies between 0 and `end`; the beginning has precedence where it is too
/// long.
double movedInside(double low, double length, double begin, double end) {
    return std::max(begin, std::min(low, end - length));
}

} // namespace

std::optional<QRectF> LabelPlacement::place(const QSizeF& size, const QPointF& anchor, LabelJustification justification,
                                            LabelBaseline baseline, bool dropOnCollision) {
    if (!view_.contains(anchor))
        return {};
    const double left = leftOf(anchor.x(), size.width(), justification);
    const double top = topOf(anchor.y(), size.height(), baseline);
    const QRectF box(QPointF(movedInside(left, size.width(), view_.left(), view_.right()),
                             movedInside(top, size.height(), view_.top(), view_.bottom())),
                     size);
    const QRectF kept = box.adjusted(-gap_, -gap_, gap_, gap_);
    const bool collides =
        std::any_of(taken_.begin(), taken_.end(), [&](const QRectF& other) { return other.intersects(kept); });
    if (dropOnCollision && collides)
        return {};
    taken_.push_back(box);
    return box;
}
