#pragma once

#include "data/engine/Database.h"
#include "data/types/Value.h"

#include <string>

/// TblSettings.BoundaryDate, in the system map database and in every project: the date of the geography that the file
/// holds. A project whose date is older than the system's takes the geography anew.

/// The present date and time, and the date without time, by the machine's clock.
Date presentTime();
Date today();
/// The form in which the date is written: "dd/mmm/yyyy", for example "05/Jan/2025".
std::string boundaryDateText(Date date);

/// Makes TblSettings with its one column. Returns 0, or -1 on failure (logged).
int CreateSettingsTable(Database& database);

/// Writes the date of the geography, making TblSettings where it is missing. Returns 0, or -1 on failure (logged).
int ModData_UpdateSystemBoundaryDate(Database& database, Date date);
