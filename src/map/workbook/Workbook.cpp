#include "map/workbook/Workbook.h"

#include "core/RuntimeError.h"
#include "data/engine/Recordset.h"
#include "map/workbook/Book.h"

#include <algorithm>

namespace {

constexpr lxw_color_t corporateColour = 0x5514B4;
constexpr std::string_view overnight = "Overnight";

std::string trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \r\n");
    if (first == std::string_view::npos)
        return "";
    return std::string(text.substr(first, text.find_last_not_of(" \r\n") - first + 1));
}

void fillParameters(Book& book, const WorkbookParameters& parameters) {
    lxw_worksheet* sheet = book.sheet("Parameters");
    lxw_format* bold = book.format();
    format_set_bold(bold);
    worksheet_write_string(sheet, 0, 0, "Map Parameters:", bold);
    double nameWidth = widthOf("Map Parameters:");
    double valueWidth = 10;
    lxw_row_t row = 1;
    for (const ParameterLine& line : parameterLines(parameters)) {
        worksheet_write_string(sheet, row, 0, line.name.c_str(), nullptr);
        worksheet_write_string(sheet, row, 1, line.value.c_str(), nullptr);
        nameWidth = std::max(nameWidth, widthOf(line.name));
        valueWidth = std::max(valueWidth, widthOf(line.value));
        ++row;
    }
    worksheet_set_column(sheet, 0, 0, nameWidth + 2, nullptr);
    worksheet_set_column(sheet, 1, 1, valueWidth + 2, nullptr);
}

void writeCell(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, const Value& value, lxw_format* format) {
    if (value.isNull())
        worksheet_write_blank(sheet, row, column, format);
    else if (value.isNumber())
        worksheet_write_number(sheet, row, column, value.asDouble(), format);
    else
        worksheet_write_string(sheet, row, column, value.asText().c_str(), format);
}

void fillData(Book& book, Recordset& rows) {
    lxw_worksheet* sheet = book.sheet("Data");
    lxw_format* header = book.format();
    format_set_bold(header);
    format_set_text_wrap(header);
    format_set_pattern(header, LXW_PATTERN_SOLID);
    format_set_bg_color(header, corporateColour);
    format_set_font_color(header, LXW_COLOR_WHITE);
    lxw_format* left = book.format();
    format_set_align(left, LXW_ALIGN_LEFT);
    lxw_format* right = book.format();
    format_set_align(right, LXW_ALIGN_RIGHT);

    const auto columns = static_cast<lxw_col_t>(rows.fieldCount());
    double areaWidth = 12;
    for (lxw_col_t column = 0; column < columns; ++column)
        worksheet_write_string(sheet, 0, column, rows.field(column).name.c_str(), header);
    lxw_row_t row = 1;
    for (; !rows.EOF_(); rows.MoveNext(), ++row) {
        for (lxw_col_t column = 0; column < columns; ++column)
            writeCell(sheet, row, column, rows.value(column), column == 0 ? left : right);
        areaWidth = std::max(areaWidth, widthOf(rows.value(0).asText()));
    }
    worksheet_set_column(sheet, 0, 0, areaWidth + 2, left);
    if (columns > 1)
        worksheet_set_column(sheet, 1, static_cast<lxw_col_t>(columns - 1), 14, right);
    worksheet_freeze_panes(sheet, 1, 1);
}

} // namespace

std::vector<ParameterLine> parameterLines(const WorkbookParameters& parameters) {
    std::vector<ParameterLine> lines{{"Start Date=", parameters.startDate},
                                     {"Start Time=", parameters.startTime},
                                     {"End Date=", parameters.endDate},
                                     {"End Time=", parameters.endTime}};
    std::string description = parameters.selectionDescription;
    if (const auto at = description.find(overnight); at != std::string::npos)
        description.erase(at, overnight.size());
    std::string_view rest = description;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find("\r\n"), rest.size());
        const std::string_view line = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 2, rest.size()));
        const std::size_t equals = line.find('=');
        if (equals != std::string_view::npos)
            lines.push_back({std::string(line.substr(0, equals + 1)), trimmed(line.substr(equals + 1))});
        else if (!trimmed(line).empty())
            lines.push_back({trimmed(line), ""});
    }
    return lines;
}

void writeWorkbook(const std::string& path, const WorkbookParameters& parameters, Recordset& rows,
                   std::span<const unsigned char> picture) {
    Book book(path);
    fillParameters(book, parameters);
    fillData(book, rows);
    if (!picture.empty() &&
        worksheet_insert_image_buffer(book.sheet("Map"), 0, 0, picture.data(), picture.size()) != LXW_NO_ERROR)
        throw RuntimeError(75, "The picture of the map cannot be put into '" + path + "'");
    book.close();
}
