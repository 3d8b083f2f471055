#pragma once

#include <string>

/// The LayerDataSource of every layer: ukmap.mdb in the application data folder, with its password.
std::string systemMapSource();
