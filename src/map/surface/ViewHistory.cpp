#include "map/surface/ViewHistory.h"

namespace {

constexpr std::size_t MostViews = 100;

bool sameView(const Camera& a, const Camera& b) {
    return a.center() == b.center() && a.scale() == b.scale();
}

} // namespace

void ViewHistory::record(const Camera& camera) {
    if (!views_.empty() && sameView(views_.back(), camera))
        return;
    if (views_.size() == MostViews)
        views_.erase(views_.begin());
    views_.push_back(camera);
}

std::optional<Camera> ViewHistory::back() {
    if (views_.size() < 2)
        return {};
    views_.pop_back();
    return views_.back();
}
