#pragma once

#include "stats/ModData_GetMultiMapData.h"
#include "stats/ReportParameters.h"

#include <string>

/// The figures of a single-map report are in the table that currentTables names, and mapMaxima holds their scale.
struct ReportFigures {
    std::string table;
    bool filtered = false; ///< the table is the selected one
};

/// Counts what the parameters select for one boundary (0 exchanges, 1 CSGs, 2 TV regions, 3 postcode districts, 5
/// customer groups) and finds the maxima, as a report button does. Figures that the last run left are taken where it
/// was asked for the same; without a filter the main table is taken as it stands. Throws RuntimeError 5 where there is
/// no such boundary, the project has no customer groups, or the selection holds a community group that is too large.
ReportFigures runReport(long boundary, const ReportParameters& parameters);

/// Counts each range of several maps into a period of its own, for TV regions (2) or postcode districts (3), unless the
/// last such run was asked for the same, and remembers what it was asked for. Throws RuntimeError 5 as runReport does.
void runMultiMapReport(long boundary, const ReportParameters& parameters, const MultiMapParameters& ranges);

/// Counts the whole project into the main table of a boundary, with the measures that are derived from it. Throws
/// RuntimeError 5 as runReport does, and where those measures failed.
void countWholeProject(long boundary);
/// The main table of a boundary. Throws RuntimeError 5 where there is no such boundary.
std::string mainTable(long boundary);
