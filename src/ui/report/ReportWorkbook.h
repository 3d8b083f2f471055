#pragma once

#include "ui/report/ReportDetails.h"

#include <QByteArray>
#include <QSize>

#include <memory>
#include <string>

/// A workbook of one sheet "Report": the report's logo where the installation has one, the details, a picture of the
/// report, and a closing line. Its members are called in that order. Those that fail throw RuntimeError 75 naming the
/// path.
class ReportWorkbook {
public:
    /// `logo` is the path of a picture; empty: none.
    ReportWorkbook(const std::string& path, const std::string& logo);
    ~ReportWorkbook();

    /// The title, and each line in two cells: the part up to and including "=", and the rest.
    void writeDetails(const ReportDetails& details);
    /// A PNG of `size` cells' pixels.
    void writePicture(const QByteArray& png, QSize size);
    /// The closing line, by which the reader knows where the report is from; writes the file.
    void close(const std::string& closingLine);

private:
    struct Sheet;
    std::unique_ptr<Sheet> sheet_;
};
