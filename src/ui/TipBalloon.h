#pragma once

#include "ui/Sign.h"

#include <QPainterPath>
#include <QWidget>

class clsTooltip;

/// The window of a tip: a rounded box, as a balloon with a tail that points at `target`, a point of the screen on the
/// edge of the thing that the tip is about. Below that thing, or above where the screen ends.
class TipBalloon : public QWidget {
    Q_OBJECT

public:
    /// `thing`: the rectangle on the screen that stays uncovered.
    TipBalloon(const clsTooltip& tip, const QRect& thing, int targetX, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void measure();
    void place(const QRect& thing, int targetX);
    void buildOutline(int tailX);
    void cutOut();
    QFont titleFont() const;

    QString title_, text_;
    Sign sign_;
    QColor fore_, back_;
    int tail_; ///< height of the tail; 0: none
    bool above_ = false;
    QRect titleRoom_, textRoom_;
    QPainterPath outline_;
};
