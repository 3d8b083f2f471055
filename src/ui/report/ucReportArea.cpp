#include "ui/report/ucReportArea.h"

#include "core/FileNames.h"
#include "core/ModDeclarations.h"
#include "core/Version.h"
#include "core/cPathControl.h"
#include "ui/report/ReportPages.h"
#include "ui/report/ReportWorkbook.h"
#include "ui/report/ucPDFPrintToFile.h"

#include <QBuffer>
#include <QEvent>
#include <QLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollBar>

namespace {

constexpr double sharpness = 3; // pixels of a printed picture for one of the screen
constexpr double workbookSharpness = 1;
constexpr double marginMillimetres = 12;

/// Hidden by the window; controls of a surface that has not been shown yet count.
bool leftOut(const QWidget& control) {
    return control.isWindow() || (control.isHidden() && control.testAttribute(Qt::WA_WState_ExplicitShowHide));
}

void addBlocks(const QWidget& parent, const QWidget& content, std::vector<ReportBlock>& blocks, int room) {
    for (const QObject* child : parent.children()) {
        const auto* control = qobject_cast<const QWidget*>(child);
        if (!control || leftOut(*control))
            continue;
        const int top = control->mapTo(&content, QPoint(0, 0)).y();
        blocks.push_back({top, top + control->height()});
        if (control->height() > room)
            addBlocks(*control, content, blocks, room);
    }
}

std::string logoPath() {
    return gbReportLogo && gPaths ? fileInFolder(gPaths->SystemDataPath, "OstelReportLogo.jpg") : std::string();
}

} // namespace

ucReportArea::ucReportArea(QWidget* parent) : QScrollArea(parent) {
    auto* controls = new QWidget(this);
    controls->setObjectName(QStringLiteral("ReportContent"));
    setWidget(controls);
    controls->setAutoFillBackground(true);
    controls->installEventFilter(this);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
}

ucReportArea::~ucReportArea() = default;

const StoredProperties& ucReportArea::storedProperties() {
    static const StoredProperties names{
        {"BackColor", "BackColor"}, {"ScrollBarH", "ScrollBarH"}, {"ScrollBarV", "ScrollBarV"}};
    return names;
}

QColor ucReportArea::BackColor() const {
    return content()->palette().color(QPalette::Window);
}

void ucReportArea::setBackColor(const QColor& colour) {
    for (QWidget* surface : {content(), viewport()}) {
        QPalette palette = surface->palette();
        palette.setColor(QPalette::Window, colour);
        surface->setPalette(palette);
    }
}

bool ucReportArea::ScrollBarH() const {
    return horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
}

void ucReportArea::setScrollBarH(bool visible) {
    setHorizontalScrollBarPolicy(visible ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

bool ucReportArea::ScrollBarV() const {
    return verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
}

void ucReportArea::setScrollBarV(bool visible) {
    setVerticalScrollBarPolicy(visible ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

int ucReportArea::ScrollBarWidth() const {
    return verticalScrollBar()->sizeHint().width();
}

QSize ucReportArea::sizeOfControls() const {
    if (const QLayout* layout = content()->layout())
        return layout->totalMinimumSize();
    QRect all;
    for (const QObject* child : content()->children()) {
        const auto* control = qobject_cast<const QWidget*>(child);
        if (control && !leftOut(*control))
            all |= control->geometry();
    }
    return all.isNull() ? QSize(0, 0) : QSize(all.right() + 1, all.bottom() + 1);
}

void ucReportArea::RecalculateBoundries() {
    const QSize controls = sizeOfControls();
    // Within the view without bars where all fits, so that no bar calls for the other.
    QSize view = maximumViewportSize();
    if (controls.height() > view.height() && ScrollBarV())
        view.rwidth() -= ScrollBarWidth();
    if (controls.width() > view.width() && ScrollBarH())
        view.rheight() -= horizontalScrollBar()->sizeHint().height();
    content()->resize(controls.expandedTo(view));
}

bool ucReportArea::allInView() const {
    const QSize controls = sizeOfControls();
    return viewport()->rect().contains(QRect(content()->pos(), controls));
}

void ucReportArea::resizeEvent(QResizeEvent* event) {
    RecalculateBoundries();
    QScrollArea::resizeEvent(event);
}

bool ucReportArea::eventFilter(QObject* watched, QEvent* event) {
    if (watched == content() && event->type() == QEvent::LayoutRequest)
        RecalculateBoundries();
    return QScrollArea::eventFilter(watched, event);
}

void ucReportArea::clearDetails() {
    printDetails_ = {};
    excelDetails_ = {};
}

QImage ucReportArea::pictureOf(const QRect& part, double scale) {
    QImage image(part.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(BackColor());
    content()->render(&image, QPoint(0, 0), QRegion(part));
    return image;
}

PagedContent ucReportArea::pagedContent() {
    PagedContent paged;
    paged.size = sizeOfControls();
    paged.blocks = [this](int room) {
        std::vector<ReportBlock> blocks;
        addBlocks(*content(), *content(), blocks, room);
        return blocks;
    };
    // As a picture: controls that paint themselves for a screen look the same on paper, whatever they draw with.
    paged.paint = [this, width = paged.size.width()](QPainter& painter, const PageSlice& slice) {
        const QRect part(0, slice.top, width, slice.height());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(part, pictureOf(part, sharpness));
    };
    paged.header = [this](QPainter& painter, const ReportPage& page) { OutputPrintHeader(painter, page); };
    paged.footer = [this](QPainter& painter, const ReportPage& page) { OutputPrintFooter(painter, page); };
    paged.details = printDetails_.lines;
    return paged;
}

void ucReportArea::OutputPrintHeader(QPainter& painter, const ReportPage& page) const {
    paintPageHeader(painter, page, printDetails_.title);
}

void ucReportArea::OutputPrintFooter(QPainter& painter, const ReportPage& page) const {
    paintPageFooter(painter, page);
}

void ucReportArea::outputTo(QPagedPaintDevice& device) {
    RecalculateBoundries();
    paintReportPages(device, pagedContent());
}

bool ucReportArea::OutputToPDF(ucPDFPrintToFile& file) {
    return file.Start([this](QPdfWriter& writer) {
        writer.setTitle(printDetails_.title);
        writer.setCreator(QString::fromUtf8(programTitle));
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageOrientation(orientationFor(sizeOfControls()));
        writer.setPageMargins(QMarginsF(marginMillimetres, marginMillimetres, marginMillimetres, marginMillimetres),
                              QPageLayout::Millimeter);
        outputTo(writer);
    });
}

bool ucReportArea::OutputToPrinter() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(printDetails_.title.isEmpty() ? QString::fromUtf8(programTitle) : printDetails_.title);
    printer.setPageOrientation(orientationFor(sizeOfControls()));
    QPrintDialog dialogue(&printer, window());
    if (dialogue.exec() != QDialog::Accepted)
        return false;
    outputTo(printer);
    return true;
}

void ucReportArea::OutputToExcel(const std::string& path) {
    excel_ = std::make_unique<ReportWorkbook>(path, logoPath());
    excel_->writeDetails(excelDetails_);
    const QRect inView = viewport()->rect().translated(-content()->pos()) & QRect(QPoint(0, 0), sizeOfControls());
    if (!inView.isEmpty()) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        pictureOf(inView, workbookSharpness).save(&buffer, "PNG");
        excel_->writePicture(png, inView.size());
    }
    OuputExcelFooter();
}

void ucReportArea::OuputExcelFooter() {
    const auto excel = std::move(excel_);
    if (!excel)
        return;
    const QString now = QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat);
    excel->close(std::string(programTitle) + " v" + programVersion() + ", " + now.toStdString());
}
