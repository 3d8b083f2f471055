#include "map/calltypes/PiePicture.h"

#include <QFont>
#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double margin = 10, titleHeight = 18, headingHeight = 16, lineHeight = 17, swatch = 10;
constexpr double titlePixels = 13, textPixels = 11.5;
constexpr double wholeCircle = 5760; // in sixteenths of a degree
constexpr QColor ink{0x2A, 0x2A, 0x2A}, quietInk{0x6B, 0x6B, 0x6B}, edge{0xFF, 0xFF, 0xFF};

QColor colourOf(const CallTypeSplit::Series& series) {
    return QColor::fromRgb(series.colour);
}

QString labelOf(const CallTypeSplit::Series& series) {
    return QString::fromUtf8(series.label.data(), static_cast<qsizetype>(series.label.size()));
}

QFont fontOf(const QString& family, double pixels, bool bold = false) {
    QFont font(family);
    font.setPixelSize(static_cast<int>(std::lround(pixels)));
    font.setBold(bold);
    return font;
}

QString percent(double share) {
    return QLocale(QLocale::English).toString(share * 100, 'f', 1) + QStringLiteral(" %");
}

} // namespace

PiePicture::PiePicture(CallTypeSplit split, QRectF area, QString fontFamily)
    : split_(std::move(split)), area_(area), family_(std::move(fontFamily)) {
    for (const auto& series : split_.series)
        drawn_ += std::max(0.0, series.value);
    const double top = area_.top() + margin + titleHeight + headingHeight + margin / 2;
    const double legend = lineHeight * static_cast<double>(split_.series.size());
    const double side =
        std::max(20.0, std::min(area_.width() / 2 - 2 * margin, std::max(area_.bottom() - margin - top, legend)));
    pie_ = QRectF(area_.left() + margin, top, side, side);
}

QString PiePicture::heading() {
    return QStringLiteral("UK Line / Mobile / International / VOIP / Other Split");
}

double PiePicture::share(std::size_t series) const {
    return drawn_ > 0 ? std::max(0.0, split_.series[series].value) / drawn_ : 0;
}

QString PiePicture::seriesText(std::size_t series) const {
    const auto& item = split_.series[series];
    const bool money = split_.title == "Cost" || split_.title == "Revenue";
    const QLocale english(QLocale::English, QLocale::UnitedKingdom);
    const QString value =
        money ? QStringLiteral("£") + english.toString(item.value, 'f', 2) : english.toString(item.value, 'f', 0);
    return labelOf(item) + QStringLiteral(": ") + value + QStringLiteral(" (") + percent(share(series)) +
           QStringLiteral(")");
}

QString PiePicture::text() const {
    QString words = QString::fromStdString(split_.title);
    for (std::size_t series = 0; series < split_.series.size(); ++series)
        words += (series == 0 ? QStringLiteral(". ") : QStringLiteral(", ")) + seriesText(series);
    return words;
}

QRectF PiePicture::legendLine(std::size_t series) const {
    const double left = pie_.right() + margin;
    const double height = lineHeight * static_cast<double>(split_.series.size());
    const double top = std::max(pie_.top(), pie_.center().y() - height / 2);
    return {left, top + lineHeight * static_cast<double>(series), area_.right() - margin - left, lineHeight};
}

std::optional<std::size_t> PiePicture::seriesAt(QPointF point) const {
    for (std::size_t series = 0; series < split_.series.size(); ++series) {
        if (legendLine(series).contains(point))
            return series;
    }
    const QPointF offset = point - pie_.center();
    if (std::hypot(offset.x(), offset.y()) > pie_.width() / 2)
        return std::nullopt;
    // Clockwise from the top, as the slices stand.
    double turn = std::atan2(offset.x(), -offset.y()) / (2 * std::numbers::pi);
    if (turn < 0)
        turn += 1;
    double end = 0;
    for (std::size_t series = 0; series < split_.series.size(); ++series) {
        end += share(series);
        if (share(series) > 0 && turn < end)
            return series;
    }
    return std::nullopt;
}

void PiePicture::paintPie(QPainter& painter) const {
    double start = wholeCircle / 4;
    for (std::size_t series = 0; series < split_.series.size(); ++series) {
        const double span = share(series) * wholeCircle;
        if (span <= 0)
            continue;
        painter.setBrush(colourOf(split_.series[series]));
        painter.setPen(span < wholeCircle ? QPen(edge, 1) : QPen(Qt::NoPen));
        if (span < wholeCircle)
            painter.drawPie(pie_, static_cast<int>(std::lround(start)), -static_cast<int>(std::lround(span)));
        else
            painter.drawEllipse(pie_);
        start -= span;
    }
}

void PiePicture::paintLegend(QPainter& painter) const {
    painter.setFont(fontOf(family_, textPixels));
    const QFontMetricsF metrics(painter.font());
    for (std::size_t series = 0; series < split_.series.size(); ++series) {
        const QRectF line = legendLine(series);
        const QRectF box(line.left(), line.center().y() - swatch / 2, swatch, swatch);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colourOf(split_.series[series]));
        painter.drawRoundedRect(box, 2, 2);
        const QRectF words = line.adjusted(swatch + 6, 0, 0, 0);
        const QString part = percent(share(series));
        painter.setPen(ink);
        painter.drawText(words, Qt::AlignVCenter | Qt::AlignRight, part);
        const double room = words.width() - metrics.horizontalAdvance(part) - 6;
        painter.drawText(words, Qt::AlignVCenter | Qt::AlignLeft,
                         metrics.elidedText(labelOf(split_.series[series]), Qt::ElideRight, room));
    }
}

void PiePicture::paint(QPainter& painter) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF title(area_.left() + margin, area_.top() + margin, area_.width() - 2 * margin, titleHeight);
    painter.setFont(fontOf(family_, titlePixels, true));
    painter.setPen(ink);
    painter.drawText(title, Qt::AlignVCenter | Qt::AlignLeft, QString::fromStdString(split_.title));
    const QRectF below = title.translated(0, titleHeight);
    painter.setFont(fontOf(family_, textPixels));
    painter.setPen(quietInk);
    painter.drawText(below, Qt::AlignVCenter | Qt::AlignLeft,
                     QFontMetricsF(painter.font()).elidedText(heading(), Qt::ElideRight, below.width()));
    paintPie(painter);
    paintLegend(painter);
    painter.restore();
}
