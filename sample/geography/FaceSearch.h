#pragma once

#include "sample/geography/FaceMesh.h"

#include <utility>
#include <vector>

namespace sample {

/// Finds the face at a place.
class FaceSearch {
public:
    /// Keeps a reference to the mesh.
    explicit FaceSearch(const FaceMesh& mesh);

    /// The face that holds the point; throws std::runtime_error where there is none.
    int at(MapPoint point) const;

private:
    using Bucket = std::pair<int, int>; ///< column and row

    const FaceMesh& mesh_;
    std::vector<std::pair<Bucket, int>> faces_; ///< per bucket the faces whose box touches it, in order
};

} // namespace sample
