#pragma once

#include "map/surface/Camera.h"

#include <optional>
#include <vector>

/// The views that a map has shown, for going back. Pixel sizes do not count.
class ViewHistory {
public:
    /// A view that has been drawn; one that is already the newest changes nothing.
    void record(const Camera& camera);
    /// The view before the newest, which is forgotten; nothing where there is none.
    std::optional<Camera> back();

private:
    std::vector<Camera> views_; // oldest first
};
