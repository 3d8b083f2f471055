#pragma once

#include "sample/geography/FaceMesh.h"

#include <span>
#include <vector>

namespace sample {

/// Joins the faces that carry the same label (0 .. labels - 1) and gives the rings of each label. Lines between equal
/// labels vanish; what two labels share is vertex for vertex the same in both.
std::vector<std::vector<Ring>> dissolve(const FaceMesh& mesh, std::span<const int> faceLabels, int labels);

} // namespace sample
