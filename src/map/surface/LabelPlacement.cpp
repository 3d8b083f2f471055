#include "map/surface/LabelPlacement.h"

#include <algorithm>
#include <array>

namespace {

/// Where a label looks for room, in shares of its width and height; near enough to stay with its area.
constexpr std::array Nudges{QPointF(0.0, 0.0), QPointF(0.0, -0.6), QPointF(0.0, 0.6), QPointF(0.3, 0.0),
                            QPointF(-0.3, 0.0)};

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

/// `low` moved so that a stretch of `length` lies between `begin` and `end`; what is too long begins at `begin`.
double movedBetween(double low, double length, double begin, double end) {
    return std::max(begin, std::min(low, end - length));
}

} // namespace

std::optional<QRectF> LabelPlacement::place(const QSizeF& size, const QPointF& anchor, LabelJustification justification,
                                            LabelBaseline baseline, bool avoidCollisions) {
    if (!isInView(anchor))
        return {};
    const QRectF wanted(
        QPointF(leftOf(anchor.x(), size.width(), justification), topOf(anchor.y(), size.height(), baseline)), size);
    for (const QPointF& nudge : Nudges) {
        const QRectF box = movedIntoView(wanted.translated(nudge.x() * size.width(), nudge.y() * size.height()));
        if (!avoidCollisions || !collides(box)) {
            taken_.push_back(box);
            return box;
        }
    }
    return {};
}

QRectF LabelPlacement::movedIntoView(const QRectF& box) const {
    return {QPointF(movedBetween(box.left(), box.width(), view_.left(), view_.right()),
                    movedBetween(box.top(), box.height(), view_.top(), view_.bottom())),
            box.size()};
}

bool LabelPlacement::collides(const QRectF& box) const {
    const QRectF kept = box.adjusted(-gap_, -gap_, gap_, gap_);
    return std::any_of(taken_.begin(), taken_.end(), [&](const QRectF& other) { return other.intersects(kept); });
}
