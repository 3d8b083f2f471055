#include "map/ReportPicture.h"

#include "core/RuntimeError.h"
#include "map/MapFormState.h"
#include "map/surface/LabelPainter.h"
#include "map/surface/MapKey.h"
#include "map/surface/MapSurface.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

// Pixels of a picture of 1400 x 1000; other sizes scale them.
constexpr QSize DesignSize(1400, 1000);
constexpr QSize SmallestPicture(2, 2);
constexpr double PanelWidth = 320.0;
constexpr double Padding = 24.0;
constexpr double CardPadding = 16.0;
constexpr double CardRadius = 8.0;
constexpr double Gap = 8.0;
/// Below this letters are hard to read. Only where a picture is too small for that is everything smaller still.
constexpr double ReadableRatio = 0.7;
constexpr QSize SmallestReadable(640, 430); ///< that holds the panel at full size
constexpr double SmallestKeyFit = 0.2;

constexpr double TitlePoints = 17.0;
constexpr double SmallestTitlePoints = 13.0;
constexpr double BodyPoints = 10.5;
constexpr double CaptionPoints = 9.5;

const QColor PanelColour(0xF7, 0xF7, 0xF7);
const QColor BorderColour(0xD9, 0xD9, 0xD9);
const QColor TextColour(0x2A, 0x2A, 0x2A);
const QColor CaptionColour(0x6B, 0x6B, 0x6B);

double ratioOf(QSize picture) {
    const double width = static_cast<double>(picture.width()) / DesignSize.width();
    const double height = static_cast<double>(picture.height()) / DesignSize.height();
    const double possible = std::min(static_cast<double>(picture.width()) / SmallestReadable.width(),
                                     static_cast<double>(picture.height()) / SmallestReadable.height());
    return std::max(std::min(width, height), std::min(ReadableRatio, possible));
}

int panelWidth(QSize picture) {
    return std::min(qRound(PanelWidth * ratioOf(picture)), picture.width() / 2);
}

/// Writes the panel from top to bottom.
class PanelWriter {
public:
    PanelWriter(QPainter& painter, QSize picture, std::string family)
        : painter_(painter), ratio_(ratioOf(picture)), family_(std::move(family)), left_(Padding * ratio_),
          width_(std::max(1.0, panelWidth(picture) - 2.0 * Padding * ratio_)), bottom_(picture.height() - left_),
          y_(Padding * ratio_) {}

    double ratio() const { return ratio_; }
    void skip(double pixels) { y_ += pixels * ratio_; }

    /// On one line where a smaller size than TitlePoints makes that possible.
    void title(const std::string& words) {
        const auto fits = [&](double points) {
            QFont font = labelFont({family_, points}, ratio_);
            font.setBold(true);
            return QFontMetricsF(font).horizontalAdvance(QString::fromStdString(words)) <= width_;
        };
        double points = TitlePoints;
        while (points > SmallestTitlePoints && !fits(points))
            points -= 0.5;
        text(words, fits(points) ? points : TitlePoints, true, TextColour);
    }

    /// Wraps at the panel's width; what does not fit above the picture's lower edge is left out.
    void text(const std::string& words, double points, bool bold, const QColor& colour) {
        if (words.empty() || y_ >= bottom_)
            return;
        QFont font = labelFont({family_, points}, ratio_);
        font.setBold(bold);
        painter_.setFont(font);
        painter_.setPen(colour);
        QRectF used;
        painter_.drawText(QRectF(left_, y_, width_, bottom_ - y_), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                          QString::fromStdString(words), &used);
        y_ += used.height();
    }

    /// As large as the other words, or smaller where the panel has less room than the whole key needs.
    void key(const MapKey& key) {
        const double padding = CardPadding * ratio_;
        const QSizeF wanted = key.neededSize(ratio_);
        if (wanted.isEmpty())
            return;
        const double fit =
            std::min((width_ - 2.0 * padding) / wanted.width(), (bottom_ - y_ - 2.0 * padding) / wanted.height());
        const double ratio = ratio_ * std::clamp(fit, SmallestKeyFit, 1.0);
        const QSizeF needed = key.neededSize(ratio);
        const QRectF card(left_, y_, std::max(width_, needed.width() + 2.0 * padding), needed.height() + 2.0 * padding);
        painter_.setPen(QPen(BorderColour, ratio_));
        painter_.setBrush(Qt::white);
        painter_.drawRoundedRect(card, CardRadius * ratio_, CardRadius * ratio_);
        painter_.save();
        painter_.translate(card.left() + padding, card.top() + padding);
        key.paint(painter_, ratio);
        painter_.restore();
        y_ = card.bottom();
    }

    /// A caption with the name of an area below it and its value at the right.
    void readOut(const std::string& caption, const std::string& name, const std::string& value) {
        text(caption, CaptionPoints, false, CaptionColour);
        if (y_ >= bottom_)
            return;
        QFont font = labelFont({family_, BodyPoints}, ratio_);
        font.setBold(true);
        const QFontMetricsF metrics(font);
        const QString number = QString::fromStdString(value);
        const double room = width_ - metrics.horizontalAdvance(number) - Gap * ratio_;
        painter_.setFont(font);
        painter_.setPen(TextColour);
        const double baseline = y_ + metrics.ascent();
        painter_.drawText(QPointF(left_, baseline),
                          metrics.elidedText(QString::fromStdString(name), Qt::ElideRight, room));
        painter_.drawText(QPointF(left_ + width_ - metrics.horizontalAdvance(number), baseline), number);
        y_ += metrics.height();
    }

private:
    QPainter& painter_;
    double ratio_;
    std::string family_;
    double left_;
    double width_;
    double bottom_;
    double y_;
};

std::string span(const std::string& from, const std::string& to) {
    return from.empty() && to.empty() ? std::string() : from + " – " + to;
}

void writePanel(PanelWriter& panel, const MapKey& key, const MapFormState& form, const ReportCaption& caption) {
    const auto& values = form.LblStatusValue;
    panel.title(caption.title);
    panel.skip(Gap / 2.0);
    panel.text(caption.subtitle, BodyPoints, false, CaptionColour);
    panel.text(span(values[0], values[1]), BodyPoints, false, CaptionColour);
    panel.text(span(values[2], values[3]), BodyPoints, false, CaptionColour);
    panel.skip(2.0 * Gap);
    panel.key(key);
    panel.skip(3.0 * Gap);
    panel.readOut("Maximum", values[4], values[5]);
    if (caption.showsMinimum) {
        panel.skip(Gap);
        panel.readOut("Minimum", values[6], values[7]);
    }
    panel.skip(3.0 * Gap);
    panel.text(caption.parameters, CaptionPoints, false, CaptionColour);
}

} // namespace

QSize reportMapSize(QSize pictureSize) {
    return {pictureSize.width() - panelWidth(pictureSize), pictureSize.height()};
}

void prepareReportMap(MapSurface& surface, QSize pictureSize) {
    pictureSize = pictureSize.expandedTo(SmallestPicture);
    surface.style.devicePixelRatio = ratioOf(pictureSize);
    surface.setPixelSize(reportMapSize(pictureSize));
}

QImage drawReportPicture(MapSurface& surface, const MapKey& key, const MapFormState& form, const ReportCaption& caption,
                         QSize pictureSize) {
    pictureSize = pictureSize.expandedTo(SmallestPicture);
    const int panel = panelWidth(pictureSize);
    const bool sameSharpness = surface.style.devicePixelRatio == ratioOf(pictureSize);
    prepareReportMap(surface, pictureSize);
    surface.setLayerIndex(0);
    try {
        surface.ZoomToExtent();
    } catch (const RuntimeError&) {
        // Nothing to show whole; the draw says why where it cannot read the layer.
    }
    const bool isDrawn = sameSharpness && !surface.picture().isNull() && surface.drawn().camera == surface.camera();
    if (!isDrawn)
        surface.DrawMap();

    QImage picture(pictureSize, QImage::Format_RGB32);
    picture.fill(PanelColour);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawImage(panel, 0, surface.picture());
    painter.fillRect(QRectF(panel - 1, 0, 1, pictureSize.height()), BorderColour);
    PanelWriter writer(painter, pictureSize, key.font.family);
    writePanel(writer, key, form, caption);
    return picture;
}
