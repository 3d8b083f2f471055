#pragma once

#include "report/panels/ChoiceBox.h"

/// A list into which its choice may be typed as well. Leaving it with a text that is no row is told by a signal, not
/// where the user goes to change the option instead, to another window or to an open list.
class TypedBox : public ChoiceBox {
    Q_OBJECT

public:
    TypedBox(const QString& name, const QString& spokenName, QWidget* parent = nullptr);

    /// A control to which the user may always go, with a text that is no row, too.
    void setWayOut(const QWidget* control) { waysOut_.append(control); }

signals:
    void leftWithoutRow(); ///< once the focus has arrived elsewhere

protected:
    /// Whether the box does with a key what it is there for, and the text no more.
    virtual bool handleKey(QKeyEvent& event) = 0;

    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QList<const QWidget*> waysOut_;
};

/// CmbInbound: takes digits and letters and refuses other signs with a message.
/// While it is typed into, it shows the rows that hold what was typed, for numbers are known by their last digits.
class InboundNumberBox : public TypedBox {
    Q_OBJECT

public:
    InboundNumberBox(const QString& name, const QString& spokenName, QWidget* parent = nullptr);

protected:
    bool handleKey(QKeyEvent& event) override;
};

/// cmbDestinationNo: completes what is typed with the first row that begins so.
class DestinationBox : public TypedBox {
    Q_OBJECT

public:
    using TypedBox::TypedBox;

protected:
    bool handleKey(QKeyEvent& event) override;

private:
    void complete(const QString& typed);
};
