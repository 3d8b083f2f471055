#include "map/workbook/AreaWorkbook.h"

#include "map/workbook/Book.h"

#include <algorithm>

namespace {

std::string titleOf(const AreaSheet& area) {
    std::string title = area.parameters.empty() ? area.title : area.title + "\n" + area.parameters;
    std::erase(title, '\r');
    return title;
}

lxw_format* boldFormat(Book& book) {
    lxw_format* format = book.format();
    format_set_bold(format);
    format_set_text_wrap(format);
    format_set_align(format, LXW_ALIGN_VERTICAL_TOP);
    return format;
}

/// The merged cells do not grow by themselves.
void writeTitle(lxw_worksheet* sheet, const AreaSheet& area, lxw_format* format) {
    constexpr double lineHeight = 15; // points
    const std::string title = titleOf(area);
    worksheet_merge_range(sheet, 0, 0, 0, 1, title.c_str(), format);
    worksheet_set_row(sheet, 0, lineHeight * static_cast<double>(1 + std::ranges::count(title, '\n')), nullptr);
}

double writeColumn(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, const std::vector<std::string>& texts) {
    double width = 10;
    for (const std::string& text : texts) {
        worksheet_write_string(sheet, row++, column, text.c_str(), nullptr);
        width = std::max(width, widthOf(text));
    }
    return width + 2;
}

} // namespace

void writeAreaWorkbook(const std::string& path, const AreaSheet& area) {
    Book book(path);
    lxw_worksheet* sheet = book.sheet("Data");
    lxw_format* bold = boldFormat(book);
    writeTitle(sheet, area, bold);
    constexpr lxw_row_t firstRow = 1;
    worksheet_set_column(sheet, 0, 0, writeColumn(sheet, firstRow, 0, area.lines), nullptr);
    double exchangeWidth = widthOf(area.title) / 2;
    if (area.exchanges) {
        worksheet_write_string(sheet, firstRow, 1, "Exchange", bold);
        exchangeWidth = writeColumn(sheet, firstRow + 1, 1, *area.exchanges);
    }
    worksheet_set_column(sheet, 1, 1, exchangeWidth, nullptr);
    book.close();
}
