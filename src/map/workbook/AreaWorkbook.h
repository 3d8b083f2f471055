#pragma once

#include <optional>
#include <string>
#include <vector>

/// The sheet of one area: what its window shows.
struct AreaSheet {
    std::string title;
    std::string parameters;                            ///< of the selection, lines joined by CR LF; empty: none
    std::vector<std::string> lines;                    ///< texts of the labels, in the order of the window
    std::optional<std::vector<std::string>> exchanges; ///< absent: the sheet has no such column
};

/// Writes a workbook with that sheet alone. Throws RuntimeError 75, naming the path, where the file cannot be written.
void writeAreaWorkbook(const std::string& path, const AreaSheet& area);
