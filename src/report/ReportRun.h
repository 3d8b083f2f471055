#pragma once

#include "stats/ReportParameters.h"

#include <string>

/// The figures of a single-map report are in the table that currentTables names, and mapMaxima holds their scale.
struct ReportFigures {
    std::string table;
    bool filtered = false; ///< the table is the selected one
};

/// Counts what the parameters select for one boundary (2: TV regions) and finds the maxima, as a report button does.
/// Without a filter the main table is taken as it stands. Throws RuntimeError 5 where the boundary's figures cannot be
/// counted or the selection holds a community group that is too large.
ReportFigures runReport(long boundary, const ReportParameters& parameters);

/// Counts the whole project into the main table of a boundary. Throws RuntimeError 5 where its figures cannot be
/// counted.
void countWholeProject(long boundary);
/// The main table of a boundary. Throws RuntimeError 5 where its figures cannot be counted.
std::string mainTable(long boundary);
