#include "ui/TipBalloon.h"

#include "ui/Skin.h"
#include "ui/clsTooltip.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include <algorithm>

namespace {

constexpr int tailHeight = 8;
constexpr int margin = 12;
constexpr int signSide = 18;
constexpr int widestText = 320;
constexpr double radius = 6.0;

} // namespace

TipBalloon::TipBalloon(const clsTooltip& tip, const QRect& thing, int targetX, QWidget* parent)
    : QWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput), title_(tip.Title),
      text_(tip.TipText), sign_(tip.Icon),
      fore_(tip.ForeColor.isValid() ? tip.ForeColor : toColor(skinColours().Grey(6))),
      back_(tip.BackColor.isValid() ? tip.BackColor : QColor(Qt::white)),
      tail_(tip.Style == clsTooltip::Shape::Balloon ? tailHeight : 0) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    measure();
    place(thing, targetX);
}

QFont TipBalloon::titleFont() const {
    QFont bold = font();
    bold.setBold(true);
    return bold;
}

/// Size of the window and the places of its texts, as if the tail were at the top.
void TipBalloon::measure() {
    const QRect room(0, 0, widestText, QWIDGETSIZE_MAX);
    const QSize text = fontMetrics().boundingRect(room, Qt::TextWordWrap, text_).size();
    const int signRoom = sign_ == Sign::None ? 0 : signSide + 8;
    const bool hasHead = !title_.isEmpty() || signRoom > 0;
    const QFontMetrics bold(titleFont());
    const int headWidth = hasHead ? signRoom + bold.horizontalAdvance(title_) : 0;
    const int headHeight = hasHead ? std::max(bold.height(), signRoom > 0 ? signSide : 0) + 4 : 0;
    const int inner = std::min(std::max(text.width(), headWidth), widestText);
    titleRoom_ = QRect(margin + signRoom, tail_ + margin, inner - signRoom, std::max(headHeight - 4, 0));
    textRoom_ = QRect(margin, tail_ + margin + headHeight, inner, text.height());
    resize(inner + 2 * margin, text.height() + headHeight + 2 * margin + tail_);
}

void TipBalloon::place(const QRect& thing, int targetX) {
    const QScreen* screen = QGuiApplication::screenAt(thing.center());
    const QRect area = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    above_ = thing.bottom() + height() > area.bottom() && thing.top() - height() >= area.top();
    const int y = above_ ? thing.top() - height() : thing.bottom() + 1;
    const int wanted = targetX - (tail_ > 0 ? width() / 3 : 0);
    const int x = std::clamp(wanted, area.left(), std::max(area.left(), area.right() - width()));
    move(x, y);
    if (above_) {
        titleRoom_.translate(0, -tail_);
        textRoom_.translate(0, -tail_);
    }
    buildOutline(
        std::clamp(targetX - x, static_cast<int>(radius) + tail_ + 1, width() - static_cast<int>(radius) - tail_ - 1));
}

void TipBalloon::buildOutline(int tailX) {
    const double top = above_ ? 0.5 : tail_ + 0.5;
    const QRectF box(0.5, top, width() - 1.0, height() - tail_ - 1.0);
    outline_ = QPainterPath();
    outline_.addRoundedRect(box, radius, radius);
    if (tail_ > 0) {
        const double root = above_ ? box.bottom() - 1 : box.top() + 1; // within the box, so that the two become one
        const double tip = above_ ? root + tail_ : root - tail_;
        QPainterPath tail;
        tail.addPolygon(QPolygonF{{tailX - tail_ * 1.0, root}, {tailX * 1.0, tip}, {tailX + tail_ * 1.0, root}});
        tail.closeSubpath();
        outline_ = outline_.united(tail);
    }
    cutOut();
}

/// Screens without translucency show the shape by this alone.
void TipBalloon::cutOut() {
    QBitmap shape(size());
    shape.clear();
    QPainter painter(&shape);
    painter.setPen(QPen(Qt::color1, 1));
    painter.setBrush(Qt::color1);
    painter.drawPath(outline_);
    painter.end();
    setMask(shape);
}

void TipBalloon::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(toColor(skinColours().Grey(4)), 1));
    painter.setBrush(back_);
    painter.drawPath(outline_);
    paintSign(painter, QRect(margin, titleRoom_.top() + (titleRoom_.height() - signSide) / 2, signSide, signSide),
              sign_);
    painter.setPen(fore_);
    painter.setFont(titleFont());
    painter.drawText(titleRoom_, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, title_);
    painter.setFont(font());
    painter.drawText(textRoom_, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, text_);
}
