#include "report/panels/DTPicker.h"

#include "report/form/RequireProject.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyleOptionComboBox>

#include <cmath>

namespace {

constexpr double secondsOfDay = 86400.0;

/// Day 0 of a Date.
QDate dayZero() {
    return QDate(1899, 12, 30);
}

/// Keys that only lead somewhere else.
bool leavesTheBox(const QKeyEvent& event) {
    return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab || event.key() == Qt::Key_Escape;
}

bool opensCalendar(const QKeyEvent& event) {
    return event.key() == Qt::Key_F4 || (event.key() == Qt::Key_Down && (event.modifiers() & Qt::AltModifier));
}

} // namespace

DTPicker::DTPicker(const QString& name, Holds holds, QWidget* parent) : QDateTimeEdit(parent), holds_(holds) {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setTimeSpec(Qt::UTC); // a day is a day, whatever the clocks of the country do on it
    setDisplayFormat(holds == Holds::Day ? QStringLiteral("dd/MM/yyyy") : QStringLiteral("HH:mm:ss"));
    setWrapping(holds == Holds::TimeOfDay);
    setCalendarPopup(holds == Holds::Day);
    lineEdit()->installEventFilter(this);
    connect(this, &QDateTimeEdit::dateTimeChanged, this, &DTPicker::changed);
}

Date DTPicker::value() const {
    if (holds_ == Holds::Day)
        return Date{static_cast<double>(dayZero().daysTo(date()))};
    return Date{QTime(0, 0).secsTo(time()) / secondsOfDay};
}

void DTPicker::setValue(Date value) {
    const QSignalBlocker silent(this);
    const double day = std::floor(value.days);
    if (holds_ == Holds::Day)
        setDate(dayZero().addDays(static_cast<qint64>(day)));
    else
        setTime(QTime(0, 0).addSecs(static_cast<int>(std::lround((value.days - day) * secondsOfDay))));
}

/// A calendar is a large widget: each is made when it is first wanted.
void DTPicker::prepareCalendar() {
    if (!calendarPopup() || calendarPrepared_)
        return;
    calendarPrepared_ = true;
    calendarWidget()->setFirstDayOfWeek(Qt::Monday);
    calendarWidget()->setAccessibleName(accessibleName());
}

/// The calendar has no key of its own: a press on its arrow opens it.
void DTPicker::openCalendar() {
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.editable = true;
    option.subControls = QStyle::SC_All;
    const QPointF arrow =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this).center();
    QMouseEvent press(QEvent::MouseButtonPress, arrow, mapToGlobal(arrow), Qt::LeftButton, Qt::LeftButton, {});
    QDateTimeEdit::mousePressEvent(&press);
}

void DTPicker::keyPressEvent(QKeyEvent* event) {
    if (leavesTheBox(*event)) {
        event->ignore();
        return;
    }
    if (!requireProject())
        return;
    prepareCalendar();
    if (calendarPopup() && opensCalendar(*event)) {
        openCalendar();
        return;
    }
    QDateTimeEdit::keyPressEvent(event);
    emit keyPressed();
}

void DTPicker::mousePressEvent(QMouseEvent* event) {
    if (!requireProject())
        return;
    prepareCalendar();
    QDateTimeEdit::mousePressEvent(event);
    emit clicked();
}

/// Over a page that scrolls, a wheel is meant for the page unless the box has been entered.
void DTPicker::wheelEvent(QWheelEvent* event) {
    if (hasFocus() && requireProject())
        QDateTimeEdit::wheelEvent(event);
    else
        event->ignore();
}

/// A press on the text goes to the text's own box.
bool DTPicker::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonPress) {
        if (!requireProject())
            return true;
        emit clicked();
    }
    return QDateTimeEdit::eventFilter(watched, event);
}
