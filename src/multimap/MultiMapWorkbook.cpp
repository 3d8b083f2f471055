#include "multimap/MultiMapWorkbook.h"

#include "core/RuntimeError.h"
#include "map/MapMeasures.h"
#include "map/workbook/Book.h"
#include "multimap/MultiMapSession.h"

#include <algorithm>

namespace {

/// Those of the single map's period come first; several maps have their own.
constexpr std::ptrdiff_t periodLines = 4;

} // namespace

std::vector<ParameterLine> parametersOfMaps(const MultiMapSession& session) {
    std::vector<ParameterLine> lines;
    if (const MapMeasure* measure = findMapMeasure(session.mapType()))
        lines.push_back({"Data=", std::string(measure->text)});
    for (int n = 1; n <= session.count(); ++n)
        lines.push_back({"Map " + std::to_string(n) + "=", session.period(n)});
    WorkbookParameters selection;
    selection.selectionDescription = session.selection();
    const std::vector<ParameterLine> selected = parameterLines(selection);
    lines.insert(lines.end(), selected.begin() + periodLines, selected.end());
    return lines;
}

void writeMultiMapWorkbook(const std::string& path, const std::vector<ParameterLine>& parameters,
                           std::span<const unsigned char> picture) {
    Book book(path);
    lxw_worksheet* sheet = book.sheet("Parameters");
    lxw_format* bold = book.format();
    format_set_bold(bold);
    worksheet_write_string(sheet, 0, 0, "Map Parameters:", bold);
    double nameWidth = widthOf("Map Parameters:"), valueWidth = 10;
    lxw_row_t row = 0;
    for (const ParameterLine& line : parameters) {
        worksheet_write_string(sheet, ++row, 0, line.name.c_str(), nullptr);
        worksheet_write_string(sheet, row, 1, line.value.c_str(), nullptr);
        nameWidth = std::max(nameWidth, widthOf(line.name));
        valueWidth = std::max(valueWidth, widthOf(line.value));
    }
    worksheet_set_column(sheet, 0, 0, nameWidth + 2, nullptr);
    worksheet_set_column(sheet, 1, 1, valueWidth + 2, nullptr);
    if (worksheet_insert_image_buffer(book.sheet("Maps"), 0, 0, picture.data(), picture.size()) != LXW_NO_ERROR)
        throw RuntimeError(75, "The picture of the maps cannot be put into '" + path + "'");
    book.close();
}
