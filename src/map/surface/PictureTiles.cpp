#include "map/surface/PictureTiles.h"

#include "map/surface/InParallel.h"

#include <algorithm>
#include <array>
#include <deque>

namespace {

/// Device pixels. A pen wider than one leaves the painter's quick way and makes a map of fine screens take a second and
/// more.
constexpr double OutlineWidth = 1.0;
/// Below this a second thread costs more than it saves.
constexpr qsizetype FewestCornersToShare = 5000;

/// The row that parts the work for the corners of the fills into halves.
int balancedRow(const QRect& area, const std::vector<PathFill>& fills) {
    constexpr std::size_t slices = 128;
    std::array<qsizetype, slices> corners{};
    qsizetype all = 0;
    for (const PathFill& fill : fills) {
        const double share = (fill.box.center().y() - area.top()) / area.height();
        const double slice = std::clamp(share * slices, 0.0, static_cast<double>(slices - 1));
        corners[static_cast<std::size_t>(slice)] += fill.path->elementCount();
        all += fill.path->elementCount();
    }
    if (all < FewestCornersToShare)
        return area.bottom() + 1;
    std::size_t slice = 0;
    for (qsizetype above = 0; slice < slices && 2 * above < all; ++slice)
        above += corners[slice];
    return area.top() + static_cast<int>(static_cast<std::size_t>(area.height()) * slice / slices);
}

/// The fills that reach into a part, with copies of the paths that another thread draws as well: a path keeps notes
/// about itself while it is drawn.
class TileWork {
public:
    TileWork(const QRect& tile, const std::vector<PathFill>& fills, const QRect* sharedWith) : tile_(tile) {
        for (const PathFill& fill : fills) {
            if (!fill.box.intersects(tile))
                continue;
            fills_.push_back(fill);
            if (sharedWith == nullptr || !fill.box.intersects(*sharedWith))
                continue;
            copies_.emplace_back().setFillRule(fill.path->fillRule());
            copies_.back().addPath(*fill.path);
            fills_.back().path = &copies_.back();
        }
    }

    /// `part` is the tile's part of the picture.
    void paint(QImage& part, const QPointF& offset) const {
        QPainter painter(&part);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(offset - QPointF(tile_.topLeft()));
        QPen pen(Qt::black, OutlineWidth);
        pen.setCosmetic(true);
        for (const PathFill& fill : fills_) {
            pen.setColor(fill.outline);
            painter.setPen(pen);
            painter.setBrush(fill.fill);
            painter.drawPath(*fill.path);
        }
    }

private:
    QRect tile_;
    std::vector<PathFill> fills_;
    std::deque<QPainterPath> copies_;
};

} // namespace

QImage partOf(QImage& picture, const QRect& area) {
    const qsizetype offset = area.top() * picture.bytesPerLine() + area.left() * qsizetype(picture.depth() / 8);
    return {picture.bits() + offset, area.width(), area.height(), picture.bytesPerLine(), picture.format()};
}

void paintFills(QImage& picture, const QRect& area, const std::vector<PathFill>& fills, const QPointF& offset) {
    const int row = balancedRow(area, fills);
    const QRect upper(area.topLeft(), QPoint(area.right(), row - 1));
    const QRect lower(QPoint(area.left(), row), area.bottomRight());
    const TileWork first(upper, fills, nullptr);
    QImage firstPart = partOf(picture, upper);
    if (lower.isEmpty())
        return first.paint(firstPart, offset);
    const TileWork second(lower, fills, &upper);
    QImage secondPart = partOf(picture, lower);
    inParallel([&] { first.paint(firstPart, offset); }, [&] { second.paint(secondPart, offset); });
}
