#include "ui/ucWebbyLink.h"

#include "ui/Contrast.h"
#include "ui/ElidedText.h"
#include "ui/Skin.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr double cornerRadius = 6.0;
constexpr int longestLine = 280; ///< a wrapped caption is not wider than this unless its window says so

/// The caption as it is read: without the signs for mnemonics.
QString spoken(const QString& caption) {
    QString text;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == QLatin1Char('&') && i + 1 < caption.size())
            ++i;
        text += caption[i];
    }
    return text;
}

/// A darker shade, or a lighter one where the text would not be readable on that.
QColor shadeOf(const QColor& back, int percent, const QColor& text) {
    const QColor darker = back.darker(percent);
    return contrastRatio(darker, text) >= leastTextContrast ? darker : back.lighter(percent);
}

} // namespace

ucWebbyLink::ucWebbyLink(QWidget* parent) : ucWebbyLink(tr("Unknown"), Kind::Link, parent) {}

ucWebbyLink::ucWebbyLink(const QString& caption, Kind kind, QWidget* parent) : QAbstractButton(parent), kind_(kind) {
    setText(caption);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setAutosize(true);
}

const StoredProperties& ucWebbyLink::storedProperties() {
    static const StoredProperties names{
        {"Caption", "Caption"},     {"Colour", "Colour"},     {"ColourHi", "ColourHighlight"},
        {"Font", "Font"},           {"Autosize", "Autosize"}, {"Wrap", "WordWrap"},
        {"Alignment", "Alignment"}, {"Enabled", "Enabled"},   {"BackColour", "BackColour"}};
    return names;
}

void ucWebbyLink::setCaption(const QString& caption) {
    setText(caption);
    Refresh();
}

QColor ucWebbyLink::Colour() const {
    if (colour_.isValid())
        return colour_;
    if (back_.isValid())
        return readableOn(back_);
    const cColours_CS colours = skinColours();
    switch (kind_) {
    case Kind::Primary:
        return Qt::white;
    case Kind::Danger:
        return toColor(colours.Coral(6));
    default:
        return toColor(colours.Indigo(5));
    }
}

void ucWebbyLink::setColour(const QColor& colour) {
    colour_ = colour;
    update();
}

QColor ucWebbyLink::ColourHighlight() const {
    if (highlight_.isValid())
        return highlight_;
    return kind_ == Kind::Link && !colour_.isValid() && !back_.isValid() ? toColor(skinColours().Indigo(6)) : Colour();
}

void ucWebbyLink::setColourHighlight(const QColor& colour) {
    highlight_ = colour;
    update();
}

QColor ucWebbyLink::BackColour() const {
    if (back_.isValid())
        return back_;
    switch (kind_) {
    case Kind::Link:
        return Qt::transparent;
    case Kind::Primary:
        return toColor(skinColours().Indigo(5));
    default:
        return Qt::white;
    }
}

void ucWebbyLink::setBackColour(const QColor& colour) {
    back_ = colour;
    update();
}

void ucWebbyLink::setAutosize(bool on) {
    autosize_ = on;
    QSizePolicy policy(on ? QSizePolicy::Maximum : QSizePolicy::Preferred,
                       wordWrap_ ? QSizePolicy::Minimum : QSizePolicy::Fixed, QSizePolicy::PushButton);
    policy.setHeightForWidth(wordWrap_);
    setSizePolicy(policy);
    Refresh();
}

void ucWebbyLink::setWordWrap(bool on) {
    wordWrap_ = on;
    setAutosize(autosize_);
}

void ucWebbyLink::setAlignment(Qt::Alignment alignment) {
    alignment_ = alignment;
    update();
}

void ucWebbyLink::setKind(Kind kind) {
    kind_ = kind;
    Refresh();
}

int ucWebbyLink::TxtWidth() const {
    return fontMetrics().horizontalAdvance(spoken(text()));
}

void ucWebbyLink::Refresh() {
    updateGeometry();
    const bool inLayout = parentWidget() && parentWidget()->layout();
    if (autosize_ && !inLayout)
        adjustSize();
    update();
}

QMargins ucWebbyLink::padding() const {
    return kind_ == Kind::Link && !back_.isValid() ? QMargins(6, 4, 6, 4) : QMargins(16, 7, 16, 7);
}

int ucWebbyLink::textFlags() const {
    int flags = static_cast<int>(alignment_) | Qt::TextShowMnemonic;
    if (!(alignment_ & Qt::AlignVertical_Mask))
        flags |= Qt::AlignVCenter;
    return wordWrap_ ? flags | Qt::TextWordWrap : flags | Qt::TextSingleLine;
}

/// Of the caption, wrapped where it is wider than `width`.
QSize ucWebbyLink::textSize(int width) const {
    if (!wordWrap_)
        return {TxtWidth(), fontMetrics().height()};
    const int room = std::max(width, fontMetrics().averageCharWidth());
    return fontMetrics().boundingRect(QRect(0, 0, room, QWIDGETSIZE_MAX), textFlags(), text()).size();
}

QSize ucWebbyLink::sizeHint() const {
    const QMargins around = padding();
    const int widest = std::min(longestLine, maximumWidth() - around.left() - around.right());
    return textSize(widest).grownBy(around);
}

QSize ucWebbyLink::minimumSizeHint() const {
    const QSize whole = sizeHint();
    if (autosize_ && !wordWrap_)
        return whole;
    return {std::min(whole.width(), 48 + padding().left() + padding().right()), whole.height()};
}

int ucWebbyLink::heightForWidth(int width) const {
    const QMargins around = padding();
    return textSize(width - around.left() - around.right()).height() + around.top() + around.bottom();
}

bool ucWebbyLink::highlighted() const {
    return isEnabled() && underMouse();
}

QColor ucWebbyLink::textColour() const {
    if (!isEnabled())
        return toColor(skinColours().Grey(5));
    return highlighted() ? ColourHighlight() : Colour();
}

QColor ucWebbyLink::fill() const {
    const cColours_CS colours = skinColours();
    const bool pressed = isEnabled() && isDown();
    if (!isEnabled() && text().isEmpty() && back_.isValid())
        return back_; // a swatch tells by its colour alone
    if (!isEnabled())
        return kind_ == Kind::Link && !back_.isValid() ? QColor(Qt::transparent) : toColor(colours.Grey(2));
    if (kind_ == Kind::Primary && !back_.isValid())
        return toColor(colours.Indigo(pressed ? 6 : highlighted() ? 4 : 5));
    if (!pressed && !highlighted())
        return BackColour();
    if (back_.isValid())
        return shadeOf(back_, pressed ? 112 : 105, Colour());
    if (kind_ == Kind::Danger)
        return toColor(colours.Coral(pressed ? 2 : 1));
    return toColor(colours.Indigo(pressed ? 2 : 1));
}

QColor ucWebbyLink::line() const {
    const cColours_CS colours = skinColours();
    if (hasFocus() && isEnabled())
        return toColor(kind_ == Kind::Primary ? colours.Turquoise(4) : colours.Turquoise(5));
    if (kind_ == Kind::Link)
        return Qt::transparent;
    if (!isEnabled())
        return toColor(colours.Grey(3));
    if (kind_ == Kind::Danger)
        return toColor(colours.Coral(highlighted() ? 6 : 3));
    if (text().isEmpty() && back_.isValid())
        return toColor(colours.Grey(5)); // a swatch may be as light as what it stands on
    if (kind_ == Kind::Primary || back_.isValid())
        return fill();
    return toColor(colours.Indigo(highlighted() ? 4 : 3));
}

void ucWebbyLink::paintFrame(QPainter& painter) const {
    const double width = hasFocus() && isEnabled() ? 2.0 : 1.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(line(), width));
    painter.setBrush(fill());
    const QRectF frame = QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2);
    painter.drawRoundedRect(frame, cornerRadius, cornerRadius);
}

void ucWebbyLink::paintCaption(QPainter& painter) const {
    QFont captionFont = font();
    if (kind_ == Kind::Link && highlighted())
        captionFont.setUnderline(true);
    painter.setFont(captionFont);
    painter.setPen(textColour());
    const QRect room = rect().marginsRemoved(padding());
    const bool whole = wordWrap_ || TxtWidth() <= room.width();
    painter.drawText(room, textFlags(), whole ? text() : elidedText(fontMetrics(), spoken(text()), room.width()));
}

void ucWebbyLink::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintFrame(painter);
    paintCaption(painter);
}

void ucWebbyLink::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

bool ucWebbyLink::event(QEvent* event) {
    const bool cut = !wordWrap_ && TxtWidth() > rect().marginsRemoved(padding()).width();
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && cut) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), spoken(text()), this);
        return true;
    }
    return QAbstractButton::event(event);
}

void ucWebbyLink::changeEvent(QEvent* event) {
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        setCursor(isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
        update();
    } else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        Refresh();
    }
}
