#include "sample/geography/FaceSearch.h"

#include "sample/geography/PlaneGeometry.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace sample {

namespace {

std::pair<int, int> bucketOf(MapPoint point) {
    constexpr double bucketSize = 200;
    return {static_cast<int>(std::floor(point.x / bucketSize)), static_cast<int>(std::floor(point.y / bucketSize))};
}

} // namespace

FaceSearch::FaceSearch(const FaceMesh& mesh) : mesh_(mesh) {
    for (int face = 0; face < static_cast<int>(mesh.faces.size()); ++face) {
        const std::vector<MapPoint> outline = mesh.outline(face);
        const auto [left, right] = std::minmax_element(outline.begin(), outline.end(),
                                                       [](const MapPoint& a, const MapPoint& b) { return a.x < b.x; });
        const auto [bottom, top] = std::minmax_element(outline.begin(), outline.end(),
                                                       [](const MapPoint& a, const MapPoint& b) { return a.y < b.y; });
        const Bucket low = bucketOf({left->x, bottom->y});
        const Bucket high = bucketOf({right->x, top->y});
        for (int column = low.first; column <= high.first; ++column)
            for (int row = low.second; row <= high.second; ++row)
                faces_.push_back({{column, row}, face});
    }
    std::sort(faces_.begin(), faces_.end());
}

int FaceSearch::at(MapPoint point) const {
    const Bucket bucket = bucketOf(point);
    for (auto entry = std::lower_bound(faces_.begin(), faces_.end(), std::pair(bucket, 0));
         entry != faces_.end() && entry->first == bucket; ++entry)
        if (ringHolds(mesh_.outline(entry->second), point))
            return entry->second;
    throw std::runtime_error("no land at " + std::to_string(point.x) + ", " + std::to_string(point.y));
}

} // namespace sample
