#pragma once

#include "sample/geography/Geography.h"

#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace sample {

/// Where a straight line crosses the coast: at `t` of its way, entering `ring`.
struct CoastCrossing {
    double t = 0;
    int segment = 0;
    int ring = 0;
};

/// The outlines of the countries as a graph: the land border in Ireland is in it once, with a ring on either side.
/// Between the vertices of the data, which stand a kilometre or two apart, the lines are made uneven.
class Coast {
public:
    static constexpr int sea = -1;

    /// Runs from vertex to vertex with one ring (or the sea) at its left and one at its right.
    struct Segment {
        int from = 0;
        int to = 0;
        int left = sea;
        int right = sea;
    };

    /// From the compiled-in outlines; throws std::runtime_error where they are damaged.
    Coast();

    std::span<const MapPoint> vertices() const { return vertices_; }
    std::span<const Segment> segments() const { return segments_; }
    int ringCount() const { return static_cast<int>(countries_.size()); }
    const std::string& country(int ring) const { return countries_[static_cast<std::size_t>(ring)]; }
    bool isAbroad(int ring) const { return abroad_[static_cast<std::size_t>(ring)]; }

    /// The ring of land that holds the point, or `sea`.
    int ringAt(MapPoint point) const;

    /// Whether the point lies on land that is divided into areas: not the sea, not the Republic.
    bool isHome(MapPoint point) const;

    /// False where a square surely holds neither land at home nor any coast.
    bool mayTouchHome(MapPoint low, double size) const;

    /// The point itself when it is at home, else a place of that kind near by: the outlines are too coarse for some
    /// harbour towns. Throws std::runtime_error when there is none within 30 kilometres.
    MapPoint nearestHome(MapPoint point) const;

    /// All crossings of the line from `a` to `b`, in their order.
    std::vector<CoastCrossing> crossings(MapPoint a, MapPoint b) const;

private:
    /// Segments by their two ends, while the rings are put together.
    using SegmentsByEnds = std::map<std::pair<int, int>, std::size_t>;
    void addRing(const std::string& country, std::vector<int> ring, SegmentsByEnds& known);
    void makeIndex();
    void roughen();
    double roomBeside(int segment, double enough) const;
    std::vector<int> segmentsNear(MapPoint a, MapPoint b, double margin) const;

    std::vector<MapPoint> vertices_;
    std::vector<Segment> segments_;
    std::vector<std::string> countries_;
    std::vector<bool> abroad_;

    // Buckets of equal squares over the whole map, row by row; each names the segments whose box touches it.
    MapPoint origin_;
    int columns_ = 0;
    int rows_ = 0;
    std::vector<std::vector<int>> buckets_;
    std::vector<std::vector<int>> bands_; ///< the same for each whole row
};

} // namespace sample
