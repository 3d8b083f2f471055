#pragma once

#include "tests/support/ShapeRows.h"
#include "tests/support/SmallInstallation.h"

#include <QColor>

#include <cstdint>
#include <string>

class MapSurface;

void addLabelPoint(Database& database, const std::string& table, std::int64_t id, const std::string& name, double x,
                   double y);
/// Adds a row to a statistics table.
void addFigure(Database& database, const std::string& table, const std::string& keyColumn, const std::string& key,
               const std::string& column, double value);

/// Three TV regions of 100 units side by side from (0, 0): "West", "Middle", which has a hole 20 units wide round its
/// centre, and "East", with 900, 3 and no figures; their names as label points.
class SmallMap {
public:
    SmallMap();

    SmallInstallation installation;

    Database& database() const;
};

/// The colour that the last draw of a surface left at a point of the map.
QColor colourAt(const MapSurface& surface, double x, double y);
