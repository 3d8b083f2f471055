#pragma once

#include "sample/geography/Geography.h"

#include <span>
#include <string>
#include <string_view>

class Database;

namespace sample {

/// Fills a PGN_ table with one row for each area, its rings being the parts. Polygons are numbered from 1.
/// `prefixes`: GROUP_1141 of each area, where the table has such a column; empty texts become null.
void writePolygons(Database& map, std::string_view table, std::span<const Area> areas,
                   std::span<const std::string> prefixes = {});

/// Fills the polygons PGN_`name`, the label points PNT_`labels` and the coverages of both in the catalogue.
void writeCoverage(Database& map, const std::string& name, const std::string& labels, std::span<const Area> areas,
                   std::span<const std::string> prefixes = {});

/// The catalogue row of a coverage that has no shapes yet.
void writeEmptyCoverage(Database& map, const std::string& name);

} // namespace sample
