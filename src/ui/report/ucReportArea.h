#pragma once

#include "ui/PropertyBag.h"
#include "ui/report/ReportDetails.h"

#include <QScrollArea>

#include <memory>
#include <string>

class QPagedPaintDevice;
class QPainter;
class ReportWorkbook;
class ucPDFPrintToFile;
struct PagedContent;
struct ReportPage;

/// A scrolling surface that holds controls laid out as a report, and sends them to the printer, a PDF file or a
/// workbook. The controls are children of content(), in a layout or placed by hand. Lengths on the screen are
/// device-independent pixels.
class ucReportArea : public QScrollArea {
    Q_OBJECT
    Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor)
    Q_PROPERTY(bool ScrollBarH READ ScrollBarH WRITE setScrollBarH)
    Q_PROPERTY(bool ScrollBarV READ ScrollBarV WRITE setScrollBarV)
    Q_PROPERTY(int ScrollBarWidth READ ScrollBarWidth)

public:
    explicit ucReportArea(QWidget* parent = nullptr);
    ~ucReportArea() override;

    /// The parent of the report's controls.
    QWidget* content() const { return widget(); }

    QColor BackColor() const;
    void setBackColor(const QColor& colour);
    /// Whether a scroll bar may show; it does where the report is larger than the surface. True at first.
    bool ScrollBarH() const;
    void setScrollBarH(bool visible);
    bool ScrollBarV() const;
    void setScrollBarV(bool visible);
    /// Room that the vertical bar takes when it shows.
    int ScrollBarWidth() const;
    /// Measures the controls and sets the scroll ranges. To be called when controls placed by hand have been moved,
    /// shown or hidden; a layout and a resize of the surface do it by themselves.
    void RecalculateBoundries();
    /// Whether nothing of the report is scrolled out of view.
    bool allInView() const;

    /// What stands at the head of the next outputs. Further details come behind those already there.
    void AddPrintDetails(const ReportDetails& details) { printDetails_.add(details); }
    void AddExcelDetails(const ReportDetails& details) { excelDetails_.add(details); }
    void clearDetails();

    /// The whole report as a PDF, by the rules of `file`. Whether it has been written.
    bool OutputToPDF(ucPDFPrintToFile& file);
    /// The whole report to a printer that the user chooses; false where the user cancels.
    bool OutputToPrinter();
    /// The whole report on pages of the device. Throws RuntimeError 482 where it cannot be written.
    void outputTo(QPagedPaintDevice& device);
    /// A workbook with the details and a picture of what is in view; one of that name is replaced. Throws RuntimeError
    /// 75, naming the path, where it cannot be written.
    void OutputToExcel(const std::string& path);
    /// Closes the workbook in hand, if there is one, with a line that tells where it is from.
    void OuputExcelFooter();

    /// Paint the head and the foot of one printed page.
    void OutputPrintHeader(QPainter& painter, const ReportPage& page) const;
    void OutputPrintFooter(QPainter& painter, const ReportPage& page) const;

    static const StoredProperties& storedProperties();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSize sizeOfControls() const;
    PagedContent pagedContent();
    QImage pictureOf(const QRect& part, double scale);

    ReportDetails printDetails_, excelDetails_;
    std::unique_ptr<ReportWorkbook> excel_; ///< while an output is in hand
};
