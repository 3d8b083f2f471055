#include "map/surface/PictureTiles.h"

#include "map/surface/InParallel.h"

#include <algorithm>
#include <array>
#include <deque>

namespace {

/// Device pixels. A pen wider than one leaves the painter's quick way and makes a map of fine screens take a second and
/// more.
constexpr double OutlineWidth = 1.0;
/// Corners in a tile that are worth its overhead, and the most tiles of a picture.
constexpr qsizetype CornersATile = 20000;
constexpr std::size_t MostTiles = 4;

/// Cuts an area into strips one below the other that have much the same number of corners to draw.
std::vector<QRect> balancedTiles(const QRect& area, const std::vector<PathFill>& fills) {
    constexpr std::size_t slices = 256;
    std::array<qsizetype, slices> corners{};
    qsizetype all = 0;
    for (const PathFill& fill : fills) {
        const double slice = (fill.box.center().y() - area.top()) / area.height() * slices;
        corners[static_cast<std::size_t>(std::clamp(slice, 0.0, slices - 1.0))] += fill.path->elementCount();
        all += fill.path->elementCount();
    }
    const qsizetype tiles = std::clamp<qsizetype>(all / CornersATile, 1, MostTiles);
    std::vector<QRect> result;
    int top = area.top();
    qsizetype above = 0;
    for (std::size_t slice = 0; slice < slices; ++slice) {
        above += corners[slice];
        const int row = area.top() + static_cast<int>(static_cast<std::size_t>(area.height()) * (slice + 1) / slices);
        const bool last = slice + 1 == slices;
        if (row > top && (last || above * tiles >= all * static_cast<qsizetype>(result.size() + 1))) {
            result.emplace_back(QPoint(area.left(), top), QPoint(area.right(), row - 1));
            top = row;
        }
    }
    return result;
}

/// The fills that reach into a tile. A path keeps notes about itself while it is drawn, so a tile has copies of those
/// that reach into the tile above as well.
class TileWork {
public:
    TileWork(QImage part, const QRect& tile, const QRect& area, const std::vector<PathFill>& fills)
        : part_(std::move(part)), tile_(tile) {
        for (const PathFill& fill : fills) {
            if (!fill.box.intersects(tile))
                continue;
            fills_.push_back(fill);
            if (tile.top() == area.top() || fill.box.top() > tile.top())
                continue;
            copies_.emplace_back().setFillRule(fill.path->fillRule());
            copies_.back().addPath(*fill.path);
            fills_.back().path = &copies_.back();
        }
    }

    void paint(const QPointF& offset) {
        QPainter painter(&part_);
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
    QImage part_; // of the picture
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
    const std::vector<QRect> tiles = balancedTiles(area, fills);
    std::vector<TileWork> work;
    work.reserve(tiles.size()); // its copies must not move
    for (const QRect& tile : tiles)
        work.emplace_back(partOf(picture, tile), tile, area, fills);
    inParallel(work.size(), [&](std::size_t i) { work[i].paint(offset); });
}
