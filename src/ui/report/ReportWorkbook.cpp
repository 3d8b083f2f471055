#include "ui/report/ReportWorkbook.h"

#include "core/RuntimeError.h"
#include "map/workbook/Book.h"

#include <QImageReader>

#include <algorithm>

namespace {

constexpr int rowPixels = 20; // of a row as workbooks make it

lxw_row_t rowsOf(int pixels) {
    return static_cast<lxw_row_t>((pixels + rowPixels - 1) / rowPixels);
}

lxw_format* boldFormat(Book& book) {
    lxw_format* format = book.format();
    format_set_bold(format);
    return format;
}

} // namespace

struct ReportWorkbook::Sheet {
    explicit Sheet(const std::string& file) : path(file), book(file), cells(book.sheet("Report")) {}

    void text(lxw_col_t column, const QString& words, lxw_format* format = nullptr) {
        const std::string utf8 = words.toStdString();
        worksheet_write_string(cells, row, column, utf8.c_str(), format);
        width[column] = std::max(width[column], widthOf(utf8) + 2);
    }

    void insert(const QByteArray& png) {
        const auto* bytes = reinterpret_cast<const unsigned char*>(png.constData());
        if (worksheet_insert_image_buffer(cells, row, 0, bytes, static_cast<size_t>(png.size())) != LXW_NO_ERROR)
            throw RuntimeError(75, "The picture of the report cannot be put into the workbook '" + path + "'");
    }

    std::string path;
    Book book;
    lxw_worksheet* cells;
    lxw_row_t row = 0;
    double width[2] = {10, 10}; ///< characters
    QByteArray picture;         ///< the library reads it at the end
};

ReportWorkbook::ReportWorkbook(const std::string& path, const std::string& logo)
    : sheet_(std::make_unique<Sheet>(path)) {
    if (logo.empty())
        return;
    // A logo that cannot be read is no reason to have no report.
    const QSize size = QImageReader(QString::fromStdString(logo)).size();
    if (size.isValid() && worksheet_insert_image(sheet_->cells, 0, 0, logo.c_str()) == LXW_NO_ERROR)
        sheet_->row = rowsOf(size.height()) + 1;
}

ReportWorkbook::~ReportWorkbook() = default;

void ReportWorkbook::writeDetails(const ReportDetails& details) {
    lxw_format* bold = boldFormat(sheet_->book);
    if (!details.title.isEmpty()) {
        worksheet_write_string(sheet_->cells, sheet_->row++, 0, details.title.toUtf8().constData(), bold);
    }
    for (const QString& line : details.lines) {
        const qsizetype name = line.indexOf('=') + 1;
        sheet_->text(0, name > 0 ? line.left(name) : line);
        if (name > 0)
            sheet_->text(1, line.mid(name).trimmed());
        ++sheet_->row;
    }
    if (sheet_->row > 0)
        ++sheet_->row;
}

void ReportWorkbook::writePicture(const QByteArray& png, QSize size) {
    sheet_->picture = png;
    sheet_->insert(sheet_->picture);
    sheet_->row += rowsOf(size.height()) + 1;
}

void ReportWorkbook::close(const std::string& closingLine) {
    worksheet_write_string(sheet_->cells, sheet_->row, 0, closingLine.c_str(), nullptr);
    for (lxw_col_t column = 0; column < 2; ++column)
        worksheet_set_column(sheet_->cells, column, column, sheet_->width[column], nullptr);
    worksheet_set_landscape(sheet_->cells);
    worksheet_fit_to_pages(sheet_->cells, 1, 0);
    sheet_->book.close();
}
