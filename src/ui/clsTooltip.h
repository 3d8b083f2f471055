#pragma once

#include "ui/Sign.h"

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QTimer>

class QWidget;

/// A tip in a balloon that belongs to one control: it comes once when the mouse rests on the control, and goes with the
/// mouse, a click, a key, or after a time. The properties are set before Create; texts changed later show at the next
/// time.
class clsTooltip : public QObject {
    Q_OBJECT

public:
    enum class Shape { Standard = 0, Balloon = 1 };

    explicit clsTooltip(QObject* parent = nullptr);
    ~clsTooltip() override;

    Shape Style = Shape::Balloon;
    bool Centered = false;  ///< under the middle of the control, else where the mouse is
    Sign Icon = Sign::None; ///< beside the title
    QColor ForeColor;       ///< invalid: the skin's
    QColor BackColor;       ///< invalid: white
    QString Title;
    QString TipText;        ///< an empty one shows no tip
    int VisibleTime = 8000; ///< milliseconds; 0 or less: until the mouse leaves
    int DelayTime = 500;    ///< milliseconds

    /// Binds the tip to `control`, in the place of an earlier one. It goes with the control. False without a control.
    bool Create(QWidget* control);
    /// Lets go of the control.
    void Destroy();

    /// The balloon while it is shown, else null.
    QWidget* balloon() const { return balloon_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool mouseIsOver() const;
    void show();
    void hide();
    void drop(); ///< the tip and the one to come

    QPointer<QWidget> control_;
    QPointer<QWidget> balloon_;
    QTimer delay_, visible_;
    bool shownOnce_ = false; ///< since the mouse came to the control
};
