#include "ui/report/ReportPages.h"

#include "core/RuntimeError.h"
#include "core/Version.h"
#include "ui/Skin.h"

#include <QLocale>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

namespace {

constexpr double contentPixelsPerInch = 96;

/// Fonts in points need the painter's device, so that a line is as high on paper as it says.
QFont pageFont(double points, bool bold = false) {
    QFont font = QFont();
    font.setPointSizeF(points);
    font.setBold(bold);
    return font;
}

double gapOf(const QPainter& painter) {
    return painter.device()->logicalDpiY() / 12.0;
}

constexpr double headerPoints = 12, detailPoints = 9, footerPoints = 8;

/// A line of that font with the rule beside it.
double bandHeight(QPainter& painter, const QFont& font) {
    painter.setFont(font);
    return painter.fontMetrics().lineSpacing() + 1.5 * gapOf(painter);
}

double headerHeight(QPainter& painter) {
    return bandHeight(painter, pageFont(headerPoints, true));
}

double footerHeight(QPainter& painter) {
    return bandHeight(painter, pageFont(footerPoints));
}

void rule(QPainter& painter, const QRectF& area, double y) {
    painter.setPen(QPen(toColor(skinColours().Grey(3)), painter.device()->logicalDpiY() / 144.0));
    painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
    painter.setPen(Qt::black);
}

constexpr int detailFlags = Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop;

double detailsHeight(QPainter& painter, const QRectF& area, const QStringList& lines) {
    if (lines.isEmpty())
        return 0;
    painter.setFont(pageFont(detailPoints));
    return painter.boundingRect(area, detailFlags, lines.join('\n')).height() + gapOf(painter);
}

class PagePrinter {
public:
    PagePrinter(QPagedPaintDevice& device, const PagedContent& content) : device_(device), content_(content) {
        check(painter_.begin(&device));
        page_ = {QRectF(QPointF(0, 0), device.pageLayout().paintRectPixels(device.logicalDpiX()).size()), 1, 1,
                 QDateTime::currentDateTime()};
        header_ = headerHeight(painter_);
        footer_ = footerHeight(painter_);
        details_ = detailsHeight(painter_, page_.area, content.details);
        scale_ = std::min(device_.logicalDpiX() / contentPixelsPerInch,
                          page_.area.width() / std::max(1, content_.size.width()));
    }

    void print() {
        const double room = page_.area.height() - header_ - footer_;
        const int rows = static_cast<int>(room / scale_);
        const int firstRows = static_cast<int>((room - details_) / scale_);
        std::vector<PageSlice> slices = pageBreaks(content_.blocks(rows), content_.size.height(), firstRows, rows);
        if (slices.empty())
            slices.push_back({0, 0}); // the details alone
        page_.count = static_cast<int>(slices.size());
        for (const PageSlice& slice : slices) {
            check(page_.number == 1 || device_.newPage());
            printPage(slice);
            ++page_.number;
        }
        check(painter_.end());
    }

private:
    static void check(bool done) {
        if (!done)
            throw RuntimeError(482, "Printer error: the report cannot be written");
    }

    void printPage(const PageSlice& slice) {
        content_.header(painter_, page_);
        content_.footer(painter_, page_);
        double top = header_;
        if (page_.number == 1) {
            painter_.setFont(pageFont(detailPoints));
            painter_.drawText(page_.area.adjusted(0, top, 0, 0), detailFlags, content_.details.join('\n'));
            top += details_;
        }
        if (slice.height() < 1)
            return;
        painter_.save();
        painter_.setClipRect(QRectF(0, top, page_.area.width(), slice.height() * scale_));
        painter_.translate(0, top - slice.top * scale_);
        painter_.scale(scale_, scale_);
        content_.paint(painter_, slice);
        painter_.restore();
    }

    QPagedPaintDevice& device_;
    const PagedContent& content_;
    QPainter painter_;
    ReportPage page_;
    double header_, footer_, details_, scale_;
};

} // namespace

void paintPageHeader(QPainter& painter, const ReportPage& page, const QString& title) {
    const double gap = gapOf(painter);
    const QRectF line(page.area.topLeft(), QSizeF(page.area.width(), headerHeight(painter) - 1.5 * gap));
    painter.setPen(Qt::black);
    const QString words = title.isEmpty() ? QString::fromUtf8(programTitle) : title;
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(words, Qt::ElideRight, static_cast<int>(line.width())));
    rule(painter, page.area, line.bottom() + gap / 2);
}

void paintPageFooter(QPainter& painter, const ReportPage& page) {
    const double gap = gapOf(painter);
    const double height = footerHeight(painter) - 1.5 * gap;
    const QRectF line(page.area.left(), page.area.bottom() - height, page.area.width(), height);
    rule(painter, page.area, line.top() - gap / 2);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                     QString::fromStdString(std::string(programTitle) + " v" + programVersion()));
    painter.drawText(line, Qt::AlignHCenter | Qt::AlignVCenter, QLocale().toString(page.printed, QLocale::ShortFormat));
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter,
                     QStringLiteral("Page %1 of %2").arg(page.number).arg(page.count));
}

void paintReportPages(QPagedPaintDevice& device, const PagedContent& content) {
    PagePrinter(device, content).print();
}

QPageLayout::Orientation orientationFor(QSize content) {
    return content.width() > content.height() ? QPageLayout::Landscape : QPageLayout::Portrait;
}
