#include "map/surface/LabelPlacement.h"

#include <algorithm>
#include <array>
#include <cmath>

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

/// A little more than a usual label, so that a box touches few cells. Device pixels.
constexpr double CellWidth = 128.0;
constexpr double CellHeight = 32.0;
/// Whatever the sizes asked for, a box is entered into no more cells than this in each direction.
constexpr std::int64_t MostCells = 64;
/// Far beyond every map; keeps cells countable.
constexpr double FarthestPixel = 1e12;

std::int64_t cellOf(double pixel, double cell) {
    return static_cast<std::int64_t>(std::floor(std::clamp(pixel, -FarthestPixel, FarthestPixel) / cell));
}

} // namespace

template<typename Visit>
bool LabelPlacement::visitCells(const QRectF& box, Visit visit) {
    const std::int64_t left = cellOf(box.left(), CellWidth), top = cellOf(box.top(), CellHeight);
    const std::int64_t right = std::min(cellOf(box.right(), CellWidth), left + MostCells);
    const std::int64_t bottom = std::min(cellOf(box.bottom(), CellHeight), top + MostCells);
    for (std::int64_t y = top; y <= bottom; ++y) {
        for (std::int64_t x = left; x <= right; ++x) {
            if (!visit(static_cast<std::uint64_t>(y) << 32 ^ (static_cast<std::uint64_t>(x) & 0xFFFFFFFFU)))
                return false;
        }
    }
    return true;
}

std::optional<QRectF> LabelPlacement::place(const QSizeF& size, const QPointF& anchor, LabelJustification justification,
                                            LabelBaseline baseline, bool avoidCollisions) {
    const QRectF wanted(
        QPointF(leftOf(anchor.x(), size.width(), justification), topOf(anchor.y(), size.height(), baseline)), size);
    for (const QPointF& nudge : Nudges) {
        const QRectF box = wanted.translated(nudge.x() * size.width(), nudge.y() * size.height());
        if (!avoidCollisions || !collides(box)) {
            take(box);
            return box;
        }
    }
    return {};
}

bool LabelPlacement::collides(const QRectF& box) const {
    const QRectF kept = box.adjusted(-gap_, -gap_, gap_, gap_);
    return !visitCells(kept, [&](std::uint64_t cell) {
        const auto found = cells_.find(cell);
        return found == cells_.end() || std::none_of(found->second.begin(), found->second.end(),
                                                     [&](std::uint32_t i) { return taken_[i].intersects(kept); });
    });
}

void LabelPlacement::take(const QRectF& box) {
    visitCells(box, [&](std::uint64_t cell) {
        cells_[cell].push_back(static_cast<std::uint32_t>(taken_.size()));
        return true;
    });
    taken_.push_back(box);
}
