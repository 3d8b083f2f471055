#pragma once

#include <QComboBox>

#include <functional>
#include <string>

/// A list of numbers into which a number may be typed as well. Keys other than digits are refused with a message. When
/// the box is left with a number that does not do, the user is told and comes back to it.
class NumberBox : public QComboBox {
    Q_OBJECT

public:
    /// `faultOf` says what is wrong with a text; empty where nothing is.
    using FaultOf = std::function<std::string(std::string_view text)>;
    NumberBox(const QString& name, const QString& spokenName, FaultOf faultOf, QWidget* parent = nullptr);

    std::string text() const { return currentText().toStdString(); }
    /// A control to which the user may always go: one that leaves the window, or that looks at the number itself.
    void setWayOut(const QWidget* control) { waysOut_.append(control); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void tellFault();

    FaultOf faultOf_;
    QList<const QWidget*> waysOut_;
};
