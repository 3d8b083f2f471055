#pragma once

#include <span>
#include <string>
#include <vector>

class Recordset;

/// The parameters of a map as its workbook names them; all are texts as the map shows them.
struct WorkbookParameters {
    std::string startDate, startTime, endDate, endTime;
    std::string selectionDescription; ///< lines "name = value" joined by CR LF
};

/// Writes a workbook with the sheet "Parameters", a sheet "Data" with one line for each row of `rows` under the
/// captions of its fields, and, where `picture` is not empty, a sheet "Map" with it. Texts of money columns stay texts,
/// as the grid shows them. `picture` is the path of a PNG file. Leaves the cursor of `rows` behind the last row. Throws
/// RuntimeError 75, naming the path, where the file cannot be written.
void writeWorkbook(const std::string& path, const WorkbookParameters& parameters, Recordset& rows,
                   std::span<const unsigned char> picture = {});

/// The lines of the sheet "Parameters": two cells each.
struct ParameterLine {
    std::string name, value;
};
std::vector<ParameterLine> parameterLines(const WorkbookParameters& parameters);
