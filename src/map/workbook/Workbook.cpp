#include "map/workbook/Workbook.h"

#include "core/RuntimeError.h"
#include "map/data/DataTable.h"
#include "map/workbook/Book.h"
#include "ui/cColours_CS.h"

#include <QBuffer>
#include <QImage>

#include <algorithm>
#include <cmath>

namespace {

void fillParameters(Book& book, const std::vector<ParameterLine>& lines) {
    lxw_worksheet* sheet = book.sheet("Parameters");
    lxw_format* bold = book.format();
    format_set_bold(bold);
    worksheet_write_string(sheet, 0, 0, "Map Parameters:", bold);
    double nameWidth = widthOf("Map Parameters:");
    double valueWidth = 10;
    lxw_row_t row = 1;
    for (const ParameterLine& line : lines) {
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

lxw_format* alignedFormat(Book& book, lxw_format_alignments alignment) {
    lxw_format* format = book.format();
    format_set_align(format, static_cast<std::uint8_t>(alignment));
    return format;
}

lxw_format* headerFormat(Book& book, lxw_format_alignments alignment) {
    lxw_format* format = alignedFormat(book, alignment);
    format_set_bold(format);
    format_set_text_wrap(format);
    format_set_pattern(format, LXW_PATTERN_SOLID);
    format_set_fg_color(format, cColours_CS().CoreColour_Indigo());
    format_set_font_color(format, LXW_COLOR_WHITE);
    return format;
}

lxw_worksheet* fillData(Book& book, const DataTable& data) {
    lxw_worksheet* sheet = book.sheet("Data");
    lxw_format* headers[] = {headerFormat(book, LXW_ALIGN_LEFT), headerFormat(book, LXW_ALIGN_RIGHT)};
    lxw_format* cells[] = {alignedFormat(book, LXW_ALIGN_LEFT), alignedFormat(book, LXW_ALIGN_RIGHT)};
    const auto columns = static_cast<lxw_col_t>(data.captions.size());
    double areaWidth = 12;
    for (lxw_col_t column = 0; column < columns; ++column)
        worksheet_write_string(sheet, 0, column, data.captions[column].c_str(), headers[column > 0]);
    lxw_row_t line = 1;
    for (const std::vector<Value>& row : data.rows) {
        for (lxw_col_t column = 0; column < columns; ++column)
            writeCell(sheet, line, column, row[column], cells[column > 0]);
        areaWidth = std::max(areaWidth, widthOf(row[0].asText()));
        ++line;
    }
    worksheet_set_column(sheet, 0, 0, areaWidth + 2, cells[0]);
    if (columns > 1)
        worksheet_set_column(sheet, 1, static_cast<lxw_col_t>(columns - 1), 16, cells[1]);
    worksheet_freeze_panes(sheet, 1, 1);
    return sheet;
}

/// A PNG that shows at the picture's logical size, however sharp the screen is.
QByteArray pngOf(const QImage& picture) {
    constexpr double dotsPerMetre = 96 / 0.0254;
    QImage scaled = picture;
    const int density = static_cast<int>(std::lround(dotsPerMetre * picture.devicePixelRatio()));
    scaled.setDotsPerMeterX(density);
    scaled.setDotsPerMeterY(density);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    scaled.save(&buffer, "PNG");
    return bytes;
}

/// `png` must live until the book is closed.
void fillMap(Book& book, const QByteArray& png) {
    lxw_worksheet* sheet = book.sheet("Map");
    const auto* bytes = reinterpret_cast<const unsigned char*>(png.constData());
    if (worksheet_insert_image_buffer(sheet, 0, 0, bytes, static_cast<std::size_t>(png.size())) != LXW_NO_ERROR)
        throw RuntimeError(5, "The picture of the map cannot be put into the workbook");
}

} // namespace

void writeDataWorkbook(const std::string& path, const WorkbookParameters& parameters, const DataTable& data) {
    Book book(path);
    fillParameters(book, parameterLines(parameters));
    worksheet_activate(fillData(book, data));
    book.close();
}

void writeMapWorkbook(const std::string& path, const WorkbookParameters& parameters, const QImage& picture) {
    writeMapWorkbook(path, parameterLines(parameters), picture);
}

void writeMapWorkbook(const std::string& path, const std::vector<ParameterLine>& parameters, const QImage& picture) {
    if (picture.isNull())
        throw RuntimeError(5, "There is no picture of the map for '" + path + "'");
    const QByteArray png = pngOf(picture);
    Book book(path);
    fillParameters(book, parameters);
    fillMap(book, png);
    book.close();
}

void writeWorkbook(const std::string& path, const WorkbookParameters& parameters, const DataTable& data,
                   const QImage& picture) {
    const QByteArray png = pngOf(picture);
    Book book(path);
    fillParameters(book, parameterLines(parameters));
    fillData(book, data);
    if (!picture.isNull())
        fillMap(book, png);
    book.close();
}
