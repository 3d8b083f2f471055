#pragma once

#include "ui/report/PageBreaks.h"

#include <QDateTime>
#include <QPageLayout>
#include <QRectF>
#include <QStringList>

#include <functional>

class QPagedPaintDevice;
class QPainter;

/// One page as its head and foot see it: device pixels, numbers from 1.
struct ReportPage {
    QRectF area; ///< inside the margins
    int number, count;
    QDateTime printed;
};

/// What a report asks of the pages that it is put on. Lengths of the content are its own pixels.
struct PagedContent {
    QSize size;
    /// The controls that stand alone; those of more than `room` rows are taken apart.
    std::function<std::vector<ReportBlock>(int room)> blocks;
    /// Paints the rows of `slice` with the content's top left at the origin of the painter.
    std::function<void(QPainter&, const PageSlice& slice)> paint;
    /// Paint the head and the foot of a page.
    std::function<void(QPainter&, const ReportPage&page)> header, footer;
    /// At the head of the first page, below its header.
    QStringList details;
};

/// The usual head and foot, painted at the top and bottom of the page's area: the title; program, time and page number.
/// Both are as high as the room that paintReportPages() leaves them.
void paintPageHeader(QPainter& painter, const ReportPage& page, const QString& title);
void paintPageFooter(QPainter& painter, const ReportPage& page);

/// Puts the content on pages of the device: as wide as the page where it is too wide, never enlarged, with a head
/// and a foot on each page. Throws RuntimeError 482 where the device cannot be written.
void paintReportPages(QPagedPaintDevice& device, const PagedContent& content);

/// How a page lies best for content of that size.
QPageLayout::Orientation orientationFor(QSize content);
