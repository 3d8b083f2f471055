#pragma once

#include "data/engine/Recordset.h"
#include "stats/ModData_GetMultiMapData.h"

#include <functional>
#include <optional>
#include <string>

/// The row of TblDataCapture in the system map database: whose figures the statistics tables hold, since when, and what
/// the last runs were asked for. A project carries the same stamp in a table of the same name. Main thread.

/// The open project as the row names it: the last 250 characters of gsProjectPath, without blanks at its ends.
std::string capturedProjectName();

/// Hands the first row of the system's table to `use`, if there is one. An error is logged and passed over.
void onCaptureRow(const std::function<void(Recordset& row)>& use);

/// Whether the statistics tables hold the figures of the open project: both rows carry the same stamp, and the
/// system's names the project. Not where one of the tables is missing.
bool isCaptured();

/// Stamps both tables with the open project and the present time, makes them where they are missing, and
/// forgets what runs of another project were asked for. Opens the project anew. Throws DatabaseError.
void recordCapture();

/// Takes the stamp back: the main tables are about to hold something else than one whole project.
void forgetCapture();

/// The ranges of the last run of several maps, where it was of the open project.
struct MultiMapSettings {
    std::string boundaryType; ///< "PostcodeDistrict", or else TV regions
    MultiMapParameters ranges;
};
std::optional<MultiMapSettings> capturedMultiMapSettings();
