#include "sample/geography/Coast.h"

#include "sample/geography/EmbeddedCsv.h"
#include "sample/geography/NationalGrid.h"
#include "sample/geography/NoisyLine.h"
#include "sample/geography/PlaneGeometry.h"
#include "sample/geography/SeededRandom.h"

#include <algorithm>
#include <limits>
#include <numbers>
#include <stdexcept>

namespace sample {

namespace {

constexpr double bucketSize = 200; // two kilometres, a few segments of the coast each

/// One ring of the outlines: vertex numbers, without the closing one.
struct RawRing {
    std::string country;
    std::vector<int> vertices;
};

/// Reads the outlines; equal places get one vertex, so that rings which share a border share its vertices.
std::vector<RawRing> readRings(std::vector<MapPoint>& vertices) {
    std::vector<RawRing> rings;
    std::map<std::pair<std::string, std::string>, int> known;
    std::string ringNumber;
    for (const CsvRecord& record : readCsv(coastCsv(), "Country,Ring,Lon,Lat")) {
        if (rings.empty() || record.fields[1] != ringNumber) {
            rings.push_back({record.fields[0], {}});
            ringNumber = record.fields[1];
        }
        const auto [place, isNew] =
            known.try_emplace({record.fields[2], record.fields[3]}, static_cast<int>(vertices.size()));
        if (isNew)
            vertices.push_back(toMap({record.number(3), record.number(2)}));
        rings.back().vertices.push_back(place->second);
    }
    for (RawRing& ring : rings) {
        if (ring.vertices.size() < 4 || ring.vertices.front() != ring.vertices.back())
            throw std::runtime_error("coast.csv: a ring of " + ring.country + " is not closed");
        ring.vertices.pop_back();
    }
    return rings;
}

} // namespace

Coast::Coast() {
    SegmentsByEnds known;
    for (RawRing& ring : readRings(vertices_))
        addRing(ring.country, std::move(ring.vertices), known);
    makeIndex();
    roughen();
    makeIndex();
}

void Coast::addRing(const std::string& country, std::vector<int> ring, SegmentsByEnds& known) {
    std::vector<MapPoint> closed;
    for (int v : ring)
        closed.push_back(vertices_[static_cast<std::size_t>(v)]);
    closed.push_back(closed.front());
    if (signedArea(closed) < 0)
        std::reverse(ring.begin(), ring.end());

    const int id = ringCount();
    countries_.push_back(country);
    abroad_.push_back(country == republicOfIreland);
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const int from = ring[i];
        const int to = ring[(i + 1) % ring.size()];
        if (const auto shared = known.find({to, from}); shared != known.end()) {
            segments_[shared->second].right = id;
            continue;
        }
        known[{from, to}] = segments_.size();
        segments_.push_back({from, to, id, sea});
    }
}

void Coast::makeIndex() {
    MapPoint low = vertices_.front();
    MapPoint high = low;
    for (const MapPoint& v : vertices_) {
        low = {std::min(low.x, v.x), std::min(low.y, v.y)};
        high = {std::max(high.x, v.x), std::max(high.y, v.y)};
    }
    buckets_.clear();
    bands_.clear();
    origin_ = low;
    columns_ = static_cast<int>((high.x - low.x) / bucketSize) + 1;
    rows_ = static_cast<int>((high.y - low.y) / bucketSize) + 1;
    buckets_.resize(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_));
    bands_.resize(static_cast<std::size_t>(rows_));
    for (std::size_t s = 0; s < segments_.size(); ++s) {
        const MapPoint a = vertices_[static_cast<std::size_t>(segments_[s].from)];
        const MapPoint b = vertices_[static_cast<std::size_t>(segments_[s].to)];
        const int firstRow = static_cast<int>((std::min(a.y, b.y) - low.y) / bucketSize);
        const int lastRow = static_cast<int>((std::max(a.y, b.y) - low.y) / bucketSize);
        const int firstColumn = static_cast<int>((std::min(a.x, b.x) - low.x) / bucketSize);
        const int lastColumn = static_cast<int>((std::max(a.x, b.x) - low.x) / bucketSize);
        for (int row = firstRow; row <= lastRow; ++row) {
            bands_[static_cast<std::size_t>(row)].push_back(static_cast<int>(s));
            for (int column = firstColumn; column <= lastColumn; ++column)
                buckets_[static_cast<std::size_t>(row * columns_ + column)].push_back(static_cast<int>(s));
        }
    }
}

// Looks east: the side of the first segment met tells where the point lies.
int Coast::ringAt(MapPoint point) const {
    const double row = (point.y - origin_.y) / bucketSize;
    if (row < 0 || row >= rows_)
        return sea;
    double nearest = std::numeric_limits<double>::infinity();
    int ring = sea;
    for (int s : bands_[static_cast<std::size_t>(row)]) {
        const Segment& segment = segments_[static_cast<std::size_t>(s)];
        const MapPoint a = vertices_[static_cast<std::size_t>(segment.from)];
        const MapPoint b = vertices_[static_cast<std::size_t>(segment.to)];
        if ((a.y > point.y) == (b.y > point.y))
            continue;
        const double x = a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y);
        if (x > point.x && x < nearest) {
            nearest = x;
            ring = b.y > a.y ? segment.left : segment.right;
        }
    }
    return ring;
}

bool Coast::isHome(MapPoint point) const {
    const int ring = ringAt(point);
    return ring != sea && !isAbroad(ring);
}

MapPoint Coast::nearestHome(MapPoint point) const {
    if (isHome(point))
        return point;
    constexpr double step = 10;
    constexpr double reach = 3000;
    constexpr int directions = 32;
    for (double radius = step; radius <= reach; radius += step) {
        for (int i = 0; i < directions; ++i) {
            const double angle = 2 * std::numbers::pi * i / directions;
            const MapPoint way{std::cos(angle), std::sin(angle)};
            // Two steps further inland, lest the place stands on the very edge.
            if (isHome(point + way * radius) && isHome(point + way * (radius + 2 * step)))
                return point + way * (radius + 2 * step);
        }
    }
    throw std::runtime_error("there is no land near " + std::to_string(point.x) + ", " + std::to_string(point.y));
}

std::vector<int> Coast::segmentsNear(MapPoint a, MapPoint b, double margin) const {
    const auto bucketOf = [](double value, double low, int count) {
        return std::clamp(static_cast<int>(std::floor((value - low) / bucketSize)), 0, count - 1);
    };
    const int lastRow = bucketOf(std::max(a.y, b.y) + margin, origin_.y, rows_);
    const int lastColumn = bucketOf(std::max(a.x, b.x) + margin, origin_.x, columns_);
    std::vector<int> found;
    for (int row = bucketOf(std::min(a.y, b.y) - margin, origin_.y, rows_); row <= lastRow; ++row) {
        for (int column = bucketOf(std::min(a.x, b.x) - margin, origin_.x, columns_); column <= lastColumn; ++column) {
            const std::vector<int>& bucket = buckets_[static_cast<std::size_t>(row * columns_ + column)];
            found.insert(found.end(), bucket.begin(), bucket.end());
        }
    }
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

bool Coast::mayTouchHome(MapPoint low, double size) const {
    const MapPoint high = low + MapPoint{size, size};
    return isHome((low + high) * 0.5) || !segmentsNear(low, high, 0).empty();
}

/// Half of the way from a segment to the nearest one that does not hang together with it, `enough` at most.
double Coast::roomBeside(int segment, double enough) const {
    const auto ends = [this](const Segment& s) {
        return std::pair(vertices_[static_cast<std::size_t>(s.from)], vertices_[static_cast<std::size_t>(s.to)]);
    };
    const Segment& own = segments_[static_cast<std::size_t>(segment)];
    const auto [a, b] = ends(own);
    double room = 2 * enough;
    for (const int near : segmentsNear(a, b, 2 * enough)) {
        const Segment& other = segments_[static_cast<std::size_t>(near)];
        if (other.from == own.from || other.from == own.to || other.to == own.from || other.to == own.to)
            continue;
        const auto [c, d] = ends(other);
        room = std::min(
            {room, distanceToLine(c, a, b), distanceToLine(d, a, b), distanceToLine(a, c, d), distanceToLine(b, c, d)});
    }
    return room / 2;
}

// Neighbours share the angle between them, and lines that face each other share the water or land between.
void Coast::roughen() {
    constexpr double roughness = 0.11;
    constexpr double stepLength = 40;
    constexpr double steepest = 0.7;
    constexpr double usedRoom = 0.8;
    constexpr std::uint64_t shape = 1707; // the coast is the same in every sample

    std::vector<std::vector<int>> neighbours(vertices_.size());
    for (const Segment& s : segments_) {
        neighbours[static_cast<std::size_t>(s.from)].push_back(s.to);
        neighbours[static_cast<std::size_t>(s.to)].push_back(s.from);
    }
    const auto slopeAt = [&](int apex, int end) {
        const MapPoint place = vertices_[static_cast<std::size_t>(apex)];
        const MapPoint way = vertices_[static_cast<std::size_t>(end)] - place;
        double slope = steepest;
        for (const int other : neighbours[static_cast<std::size_t>(apex)]) {
            const MapPoint otherWay = vertices_[static_cast<std::size_t>(other)] - place;
            if (other != end) // tan(angle / 2) = sin / (1 + cos)
                slope = std::min(slope, std::abs(cross(way, otherWay)) /
                                            (std::sqrt(dot(way, way) * dot(otherWay, otherWay)) + dot(way, otherWay)));
        }
        return usedRoom * slope;
    };

    std::vector<Segment> rough;
    std::vector<MapPoint> added;
    for (std::size_t i = 0; i < segments_.size(); ++i) {
        Segment piece = segments_[i];
        const int end = piece.to;
        const MapPoint from = vertices_[static_cast<std::size_t>(piece.from)];
        const MapPoint to = vertices_[static_cast<std::size_t>(end)];
        const Unevenness unevenness{.roughness = roughness,
                                    .stepLength = stepLength,
                                    .slopeFrom = slopeAt(piece.from, end),
                                    .slopeTo = slopeAt(end, piece.from),
                                    .reach =
                                        usedRoom * roomBeside(static_cast<int>(i), 2 * roughness * distance(from, to))};
        for (const MapPoint& point : unevenPoints(from, to, unevenness, mixAll(shape, i))) {
            piece.to = static_cast<int>(vertices_.size() + added.size());
            added.push_back(point);
            rough.push_back(piece);
            piece.from = piece.to;
        }
        piece.to = end;
        rough.push_back(piece);
    }
    vertices_.insert(vertices_.end(), added.begin(), added.end());
    segments_ = std::move(rough);
}

std::vector<CoastCrossing> Coast::crossings(MapPoint a, MapPoint b) const {
    std::vector<CoastCrossing> found;
    for (int s : segmentsNear(a, b, 0)) {
        const Segment& segment = segments_[static_cast<std::size_t>(s)];
        const MapPoint c = vertices_[static_cast<std::size_t>(segment.from)];
        const MapPoint d = vertices_[static_cast<std::size_t>(segment.to)];
        const bool fromLeft = cross(d - c, a - c) > 0;
        if (fromLeft == (cross(d - c, b - c) > 0) || (cross(b - a, c - a) > 0) == (cross(b - a, d - a) > 0))
            continue;
        const double t = cross(c - a, d - c) / cross(b - a, d - c);
        found.push_back({t, s, fromLeft ? segment.right : segment.left});
    }
    std::sort(found.begin(), found.end(), [](const CoastCrossing& l, const CoastCrossing& r) { return l.t < r.t; });
    return found;
}

} // namespace sample
