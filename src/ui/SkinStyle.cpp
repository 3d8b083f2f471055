#include "ui/SkinStyle.h"

#include "ui/PaintedIcon.h"
#include "ui/Sign.h"
#include "ui/Skin.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QDateTimeEdit>
#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTextCharFormat>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr double fieldRadius = 4.0;
constexpr int fieldHeight = 30;
constexpr int rowHeight = 24; ///< of a tree
constexpr int indicatorSide = 18;
constexpr int textMargin = 3; ///< between a field's line and its text, besides what the control leaves itself

bool is(const QStyleOption& option, QStyle::StateFlag flag) {
    return option.state.testFlag(flag);
}

/// The outline of something that can be filled in or ticked.
QPen outline(const QStyleOption& option) {
    const cColours_CS colours = skinColours();
    if (!is(option, QStyle::State_Enabled))
        return {toColor(colours.Grey(3)), 1.0};
    if (is(option, QStyle::State_HasFocus))
        return {toColor(colours.Turquoise(5)), 2.0};
    return {toColor(is(option, QStyle::State_MouseOver) ? colours.Indigo(4) : colours.Grey(4)), 1.0};
}

QColor inside(const QStyleOption& option) {
    return is(option, QStyle::State_Enabled) ? QColor(Qt::white) : toColor(skinColours().Grey(2));
}

QRectF within(const QRect& rect, double line) {
    return QRectF(rect).adjusted(line / 2, line / 2, -line / 2, -line / 2);
}

void drawField(const QStyleOption& option, QPainter& painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QPen pen = outline(option);
    painter.setPen(pen);
    painter.setBrush(inside(option));
    painter.drawRoundedRect(within(option.rect, pen.widthF()), fieldRadius, fieldRadius);
    painter.restore();
}

/// `quarterTurns` from pointing down, clockwise.
void drawChevron(QPainter& painter, const QRectF& room, int quarterTurns, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(room.center());
    painter.rotate(90.0 * quarterTurns);
    const double half = std::clamp(std::min(room.width(), room.height()) / 4, 2.0, 4.0);
    painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{{-half, -half / 2}, {0, half / 2}, {half, -half / 2}});
    painter.restore();
}

QColor arrowColour(const QStyleOption& option, bool active = true) {
    const cColours_CS colours = skinColours();
    return toColor(is(option, QStyle::State_Enabled) && active ? colours.Grey(6) : colours.Grey(4));
}

void drawCheckBox(const QStyleOption& option, QPainter& painter) {
    const cColours_CS colours = skinColours();
    const bool on = is(option, QStyle::State_On), partly = is(option, QStyle::State_NoChange);
    const bool enabled = is(option, QStyle::State_Enabled);
    const QColor filled = toColor(enabled ? colours.Indigo(5) : colours.Grey(4));
    const QPen pen = (on || partly) && !is(option, QStyle::State_HasFocus) ? QPen(filled, 1) : outline(option);
    painter.setPen(pen);
    painter.setBrush(on || partly ? filled : inside(option));
    const QRectF box = within(option.rect, pen.widthF()).adjusted(1, 1, -1, -1);
    painter.drawRoundedRect(box, 3, 3);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&](double x, double y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    if (on)
        painter.drawPolyline(QPolygonF{at(0.24, 0.52), at(0.43, 0.71), at(0.77, 0.30)});
    else if (partly)
        painter.drawLine(at(0.26, 0.5), at(0.74, 0.5));
}

void drawOption(const QStyleOption& option, QPainter& painter) {
    const cColours_CS colours = skinColours();
    const bool on = is(option, QStyle::State_On), enabled = is(option, QStyle::State_Enabled);
    const QColor filled = toColor(enabled ? colours.Indigo(5) : colours.Grey(4));
    QPen pen = outline(option);
    if (on && !is(option, QStyle::State_HasFocus))
        pen = QPen(filled, 1.5);
    painter.setPen(pen);
    painter.setBrush(inside(option));
    const QRectF ring = within(option.rect, pen.widthF()).adjusted(1, 1, -1, -1);
    painter.drawEllipse(ring);
    if (!on)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(filled);
    painter.drawEllipse(ring.center(), ring.width() / 4, ring.height() / 4);
}

void drawFocus(const QStyleOption& option, QPainter& painter) {
    painter.setPen(QPen(toColor(skinColours().Turquoise(5)), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(within(option.rect, 1.5), 3, 3);
}

/// Quarter turns of an arrow; -1 for anything else.
int turnsOf(QStyle::PrimitiveElement element) {
    switch (element) {
    case QStyle::PE_IndicatorArrowDown:
        return 0;
    case QStyle::PE_IndicatorArrowLeft:
        return 1;
    case QStyle::PE_IndicatorArrowUp:
        return 2;
    case QStyle::PE_IndicatorArrowRight:
        return 3;
    default:
        return -1;
    }
}

Sign signOf(QStyle::StandardPixmap picture) {
    switch (picture) {
    case QStyle::SP_MessageBoxInformation:
        return Sign::Information;
    case QStyle::SP_MessageBoxWarning:
        return Sign::Warning;
    case QStyle::SP_MessageBoxCritical:
        return Sign::Error;
    case QStyle::SP_MessageBoxQuestion:
        return Sign::Question;
    default:
        return Sign::None;
    }
}

} // namespace

SkinStyle::SkinStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

/// Calendars bring their own colours and pictures.
void SkinStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    auto* calendar = qobject_cast<QCalendarWidget*>(widget);
    if (!calendar)
        return;
    QTextCharFormat weekend;
    weekend.setForeground(toColor(skinColours().Coral(6)));
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        calendar->setWeekdayTextFormat(day, weekend);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    const std::pair<const char*, int> arrows[] = {{"qt_calendar_prevmonth", 1}, {"qt_calendar_nextmonth", 3}};
    for (const auto& [name, turns] : arrows)
        if (auto* button = calendar->findChild<QToolButton*>(QLatin1String(name)))
            button->setIcon(paintedIcon([turns = turns](QPainter& painter, const QRectF& box) {
                drawChevron(painter, box, turns, Qt::white);
            }));
}

void SkinStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    if (const int turns = turnsOf(element); turns >= 0) {
        drawChevron(*painter, option->rect, turns, arrowColour(*option));
        return;
    }
    if (element == PE_PanelLineEdit || element == PE_FrameLineEdit) {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (!frame || frame->lineWidth > 0) // a box inside another field has no line of its own
            drawField(*option, *painter);
        return;
    }
    void (*draw)(const QStyleOption&, QPainter&) = nullptr;
    if (element == PE_IndicatorCheckBox)
        draw = drawCheckBox;
    else if (element == PE_IndicatorRadioButton)
        draw = drawOption;
    else if (element == PE_FrameFocusRect && !qobject_cast<const QAbstractItemView*>(widget))
        draw = drawFocus;
    if (!draw) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    draw(*option, *painter);
    painter->restore();
}

void SkinStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const {
    if (control == CC_ComboBox) {
        drawField(*option, *painter);
        const QRect arrow = subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget);
        drawChevron(*painter, arrow, 0, arrowColour(*option));
        return;
    }
    const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    if (control != CC_SpinBox || !spin) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    drawField(*option, *painter);
    if (spin->buttonSymbols == QAbstractSpinBox::NoButtons)
        return;
    const bool up = spin->stepEnabled & QAbstractSpinBox::StepUpEnabled;
    const bool down = spin->stepEnabled & QAbstractSpinBox::StepDownEnabled;
    drawChevron(*painter, subControlRect(CC_SpinBox, option, SC_SpinBoxUp, widget), 2, arrowColour(*option, up));
    drawChevron(*painter, subControlRect(CC_SpinBox, option, SC_SpinBoxDown, widget), 0, arrowColour(*option, down));
}

QSize SkinStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
    const bool field = type == CT_LineEdit || type == CT_ComboBox || type == CT_SpinBox;
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (field && (!frame || frame->lineWidth > 0))
        whole.setHeight(std::max(whole.height(), fieldHeight));
    if (type == CT_ItemViewItem && qobject_cast<const QTreeView*>(widget))
        whole.setHeight(std::max(whole.height(), rowHeight));
    return whole;
}

QRect SkinStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element == SE_LineEditContents && frame && frame->lineWidth > 0)
        return rect.adjusted(textMargin, 0, -textMargin, 0);
    return rect;
}

QRect SkinStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const {
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    const bool entry =
        (control == CC_SpinBox && part == SC_SpinBoxEditField) ||
        (control == CC_ComboBox && part == SC_ComboBoxEditField && qobject_cast<const QDateTimeEdit*>(widget));
    return entry ? rect.adjusted(textMargin - 1, 0, 0, 0) : rect;
}

int SkinStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return indicatorSide;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QIcon SkinStyle::standardIcon(StandardPixmap picture, const QStyleOption* option, const QWidget* widget) const {
    const Sign sign = signOf(picture);
    if (sign == Sign::None)
        return QProxyStyle::standardIcon(picture, option, widget);
    return paintedIcon([sign](QPainter& painter, const QRectF& box) { paintSign(painter, box, sign); });
}

int SkinStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const {
    if (hint == SH_ComboBox_Popup)
        return 0; // a list below the box, not a menu over it
    return QProxyStyle::styleHint(hint, option, widget, returned);
}
