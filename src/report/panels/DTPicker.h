#pragma once

#include "data/types/Value.h"

#include <QDateTimeEdit>

/// A box for a day, with a calendar, or for a time of day. F4 and Alt+Down open the
/// calendar. It takes the user's clicks and keys only while a project is
/// open, and says so otherwise.
class DTPicker : public QDateTimeEdit {
    Q_OBJECT

public:
    enum class Holds { Day, TimeOfDay };
    DTPicker(const QString& name, Holds holds, QWidget* parent = nullptr);

    /// A whole day, or a time of day 0.
    Date value() const;
    /// Raises no signal.
    void setValue(Date value);

signals:
    /// By the user; a spin by mouse or key raises `clicked` or `keyPressed` as well, behind it.
    void changed();
    void clicked();
    void keyPressed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void prepareCalendar();
    void openCalendar();

    Holds holds_;
    bool calendarPrepared_ = false;
};
