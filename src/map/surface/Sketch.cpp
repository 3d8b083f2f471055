#include "map/surface/Sketch.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace {

constexpr int RimCorners = 96;
constexpr double MetresPerUnit = 10.0;
constexpr double MetresPerMile = 1609.344;
constexpr std::size_t FewestCorners = 3;

double distance(const QPointF& a, const QPointF& b) {
    return std::hypot(b.x() - a.x(), b.y() - a.y());
}

bool isQuery(MapTool tool) {
    return tool == MapTool::PolygonQuery || tool == MapTool::CircleQuery;
}

/// Corners that a figure needs before it is one.
std::size_t fewestPoints(const Sketch& sketch) {
    if (sketch.tool == MapTool::DrawPoint)
        return 1;
    return sketch.isArea() && !sketch.isCircle() ? FewestCorners : 2;
}

} // namespace

QPolygonF Sketch::outline() const {
    QPolygonF line;
    if (isCircle()) {
        const double radius = length();
        for (int i = 0; i <= RimCorners; ++i) {
            const double angle = 2.0 * std::numbers::pi * i / RimCorners;
            line.append(points.front() + QPointF(std::cos(angle), std::sin(angle)) * radius);
        }
        return line;
    }
    for (const QPointF& point : points)
        line.append(point);
    if (isArea())
        line.append(points.front());
    return line;
}

double Sketch::length() const {
    if (isCircle())
        return distance(points.front(), points.back());
    const QPolygonF line = outline();
    double sum = 0.0;
    for (qsizetype i = 1; i < line.size(); ++i)
        sum += distance(line[i - 1], line[i]);
    return sum;
}

std::string distanceText(double mapUnits) {
    const double metres = mapUnits * MetresPerUnit;
    char text[64];
    if (metres < 1000.0)
        std::snprintf(text, sizeof text, "%.0f m", metres);
    else
        std::snprintf(text, sizeof text, "%.1f km (%.1f miles)", metres / 1000.0, metres / MetresPerMile);
    return text;
}

bool SketchPad::draws(MapTool tool) {
    return drawsInOneStroke(tool) || tool == MapTool::Measure || tool == MapTool::DrawPoint ||
           tool == MapTool::DrawPolyline || tool == MapTool::DrawPolygon;
}

bool SketchPad::drawsInOneStroke(MapTool tool) {
    return isQuery(tool) || tool == MapTool::DrawCircle;
}

void SketchPad::press(MapTool tool, const QPointF& mapPoint) {
    if (current_ && current_->tool != tool)
        current_.reset();
    if (tool == MapTool::DrawPoint) {
        kept_.push_back({tool, {mapPoint}});
    } else if (current_) {
        current_->points.back() = mapPoint;
        current_->points.push_back(mapPoint);
    } else {
        if (tool == MapTool::Measure) // one distance at a time
            forget(MapTool::Measure);
        current_ = Sketch{tool, {mapPoint, mapPoint}};
    }
}

void SketchPad::move(const QPointF& mapPoint) {
    if (!current_)
        return;
    if (current_->tool == MapTool::PolygonQuery)
        current_->points.push_back(mapPoint);
    else
        current_->points.back() = mapPoint;
}

std::optional<QPolygonF> SketchPad::release() {
    if (!current_ || !drawsInOneStroke(current_->tool))
        return {};
    const Sketch stroke = std::move(*current_);
    current_.reset();
    if (stroke.points.size() < fewestPoints(stroke) || stroke.length() == 0.0)
        return {};
    if (isQuery(stroke.tool))
        return stroke.outline();
    kept_.push_back(stroke);
    return {};
}

void SketchPad::finish() {
    if (!current_)
        return;
    auto& points = current_->points;
    points.pop_back(); // the pointer's place
    // A double click sets a corner twice.
    points.erase(std::unique(points.begin(), points.end()), points.end());
    if (points.size() >= fewestPoints(*current_))
        kept_.push_back(*current_);
    current_.reset();
}

bool SketchPad::takeBack() {
    if (!current_)
        return false;
    auto& points = current_->points;
    if (points.size() <= 2)
        current_.reset();
    else
        points.erase(points.end() - 2);
    return true;
}

bool SketchPad::clear() {
    if (current_) {
        current_.reset();
        return true;
    }
    const bool any = !kept_.empty();
    kept_.clear();
    return any;
}

void SketchPad::forget(MapTool tool) {
    std::erase_if(kept_, [tool](const Sketch& sketch) { return sketch.tool == tool; });
}
