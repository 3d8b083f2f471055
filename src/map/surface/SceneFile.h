#pragma once

#include "map/surface/Scene.h"

#include <string>

/// Writes the layers with all their properties to a file, replacing it. Throws RuntimeError 75 where it cannot be
/// written.
void saveScene(const Scene& scene, const std::string& path);

/// Reads what saveScene wrote. Throws RuntimeError: 53 where there is no file, 321 where it holds something else.
Scene loadScene(const std::string& path);
