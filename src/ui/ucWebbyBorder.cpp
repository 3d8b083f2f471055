#include "ui/ucWebbyBorder.h"

#include "ui/ElidedText.h"
#include "ui/Skin.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int tabPixels = 6;
constexpr int captionMargin = 16; ///< left and right of the caption
constexpr int captionTop = 12;

QColor orElse(const QColor& colour, Colour fallback) {
    return colour.isValid() ? colour : toColor(fallback);
}

} // namespace

ucWebbyBorder::ucWebbyBorder(QWidget* parent) : QWidget(parent) {
    reserveRoom();
}

const StoredProperties& ucWebbyBorder::storedProperties() {
    static const StoredProperties names{
        {"FillColour", "FillColour"},     {"ForeColour", "BorderColour"},      {"DrawWidth", "BorderWidth"},
        {"CornerDepth", "CornerDepth"},   {"Backcolour", "TransparentColour"}, {"Transparency", "Transparency"},
        {"Caption", "Caption"},           {"CaptionColour", "CaptionColour"},  {"Enabled", "Enabled"},
        {"ShowParamTab", "ShowParamTab"}, {"ParamTabColor", "ParamTabColor"}};
    return names;
}

QColor ucWebbyBorder::FillColour() const {
    return orElse(fillColour_, 0xFFFFFF);
}

void ucWebbyBorder::setFillColour(const QColor& colour) {
    fillColour_ = colour;
    update();
}

QColor ucWebbyBorder::BorderColour() const {
    return orElse(borderColour_, skinColours().Grey(3));
}

void ucWebbyBorder::setBorderColour(const QColor& colour) {
    borderColour_ = colour;
    update();
}

void ucWebbyBorder::setBorderWidth(int width) {
    borderWidth_ = std::max(width, 0);
    reserveRoom();
}

void ucWebbyBorder::setCornerDepth(int radius) {
    cornerDepth_ = std::max(radius, 0);
    update();
}

QColor ucWebbyBorder::TransparentColour() const {
    return orElse(transparentColour_, skinColours().Grey(2));
}

void ucWebbyBorder::setTransparentColour(const QColor& colour) {
    transparentColour_ = colour;
    update();
}

void ucWebbyBorder::setTransparency(bool on) {
    transparency_ = on;
    update();
}

void ucWebbyBorder::setCaption(const QString& caption) {
    caption_ = caption;
    reserveRoom();
}

QColor ucWebbyBorder::CaptionColour() const {
    return orElse(captionColour_, skinColours().Grey(6));
}

void ucWebbyBorder::setCaptionColour(const QColor& colour) {
    captionColour_ = colour;
    update();
}

void ucWebbyBorder::setShowParamTab(bool on) {
    showParamTab_ = on;
    reserveRoom();
}

QColor ucWebbyBorder::ParamTabColor() const {
    return orElse(paramTabColor_, skinColours().Param_DateTime());
}

void ucWebbyBorder::setParamTabColor(const QColor& colour) {
    paramTabColor_ = colour;
    update();
}

QFont ucWebbyBorder::captionFont() const {
    QFont bold = font();
    bold.setBold(true);
    return bold;
}

int ucWebbyBorder::tabWidth() const {
    return showParamTab_ ? tabPixels : 0;
}

void ucWebbyBorder::reserveRoom() {
    const int captionRoom = caption_.isEmpty() ? 0 : captionTop + QFontMetrics(captionFont()).height();
    setContentsMargins(borderWidth_ + tabWidth(), borderWidth_ + captionRoom, borderWidth_, borderWidth_);
    update();
}

void ucWebbyBorder::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        reserveRoom();
    else if (event->type() == QEvent::EnabledChange)
        update();
}

void ucWebbyBorder::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!transparency_)
        painter.fillRect(rect(), TransparentColour());
    painter.setRenderHint(QPainter::Antialiasing);
    const double half = borderWidth_ / 2.0;
    QPainterPath panel;
    panel.addRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), cornerDepth_, cornerDepth_);
    painter.fillPath(panel, isEnabled() || fillColour_.isValid() ? FillColour() : toColor(skinColours().Grey(1)));
    if (showParamTab_) {
        QPainterPath strip;
        strip.addRect(0, 0, tabWidth() + borderWidth_, height());
        painter.fillPath(panel.intersected(strip), ParamTabColor());
    }
    if (borderWidth_ > 0)
        painter.strokePath(panel, QPen(BorderColour(), borderWidth_));
    if (caption_.isEmpty())
        return;
    painter.setFont(captionFont());
    painter.setPen(isEnabled() ? CaptionColour() : toColor(skinColours().Grey(5)));
    const QRect room(contentsRect().left() + captionMargin, borderWidth_ + captionTop,
                     contentsRect().width() - 2 * captionMargin, painter.fontMetrics().height());
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, elidedText(painter.fontMetrics(), caption_, room.width()));
}
