#pragma once

#include "data/engine/Database.h"

/// Rebuilds TblMappingGIS of a project from its TblGIS, corrected by the exchange names of the system map database,
/// where the geography of that database is newer than the one that the project last took. Afterwards the project
/// carries the present date. Returns 0 on success and where nothing was to do, -1 on failure (logged); the project then
/// keeps the table that it had.
int ModUtilities_UpdateMappingGISTable(Database& project);
