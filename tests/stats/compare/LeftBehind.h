#pragma once

#include "tests/stats/compare/RandomRun.h"

#include <string>
#include <vector>

/// A table as it stands: null is "null".
struct TableRows {
    std::string name;
    std::vector<std::string> columns;
    std::vector<std::vector<std::string>> rows;
};

/// What a run leaves: its statistics table with its rows as they stand, then the working tables that it makes in the
/// project, whose rows are sorted and without the case and trailing blanks that do not tell texts apart.
std::vector<TableRows> leftBehind(const RandomRun& run);

/// Where the two differ first: table, row and column; empty where they do not.
std::string firstDifference(const std::vector<TableRows>& scanned, const std::vector<TableRows>& stated);
/// The first rows that differ of a table and its recount.
std::string firstDifference(const std::vector<std::string>& stored, const std::vector<std::string>& recounted);
