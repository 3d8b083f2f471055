#pragma once

#include <string>
#include <vector>

struct DataTable;
class QImage;

/// The parameters of a map as its workbook names them; all are texts as the map shows them.
struct WorkbookParameters {
    std::string startDate, startTime, endDate, endTime;
    std::string selectionDescription; ///< lines "name = value" joined by CR LF
};

/// The lines of the sheet "Parameters": two cells each.
struct ParameterLine {
    std::string name, value;
};
std::vector<ParameterLine> parameterLines(const WorkbookParameters& parameters);
/// Those of a selection's description alone.
std::vector<ParameterLine> descriptionLines(std::string description);

/// Workbooks of a map. Each begins with the sheet "Parameters". All throw RuntimeError 75, naming the path, where the
/// file cannot be written.

/// With the sheet "Data": one line for each row of `data` under its captions. Texts of money columns stay texts, as the
/// grid shows them. "Data" is selected.
void writeDataWorkbook(const std::string& path, const WorkbookParameters& parameters, const DataTable& data);

/// With the sheet "Map": the picture, at its size on the screen. "Parameters" is selected. A picture without pixels is
/// error 5.
void writeMapWorkbook(const std::string& path, const WorkbookParameters& parameters, const QImage& picture);
/// The same for maps whose parameters are lines of their own.
void writeMapWorkbook(const std::string& path, const std::vector<ParameterLine>& parameters, const QImage& picture);

/// With both. The picture may be null: then there is no sheet "Map".
void writeWorkbook(const std::string& path, const WorkbookParameters& parameters, const DataTable& data,
                   const QImage& picture);
