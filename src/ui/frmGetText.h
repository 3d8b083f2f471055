#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

/// A small modal prompt for one text. Its caller sets the window's title, the instructions and, where there is one, the
/// limit of the box's length (txtText()->setMaxLength), then calls GetText.
class frmGetText : public QDialog {
    Q_OBJECT
    Q_PROPERTY(int Format READ Format WRITE setFormat)

public:
    /// What keys the box takes. Letters are those of English. Pasted text is rid of what does not fit in the two
    /// formats of numbers; the others take it as it is.
    enum Formats {
        LettersAndDigits = 0,
        Letters = 1,
        Digits = 2,
        Currency = 3 ///< digits and one "."; a pound sign stands before the box
    };

    explicit frmGetText(QWidget* parent = nullptr);

    int Format() const { return format_; }
    void setFormat(int format); ///< others than those above take any key

    /// Shows `Text` in the box with the caret at its end, and returns when the user is done: with the text entered, or,
    /// where Cancelled, with `Text` as it was.
    void GetText(QString& Text, bool& Cancelled);

    QLabel* lblInstructions() const { return lblInstructions_; }
    QLineEdit* txtText() const { return txtText_; }
    QLabel* lblPound() const { return lblPound_; }
    QPushButton* cmdOK() const { return cmdOK_; }
    QPushButton* cmdCancel() const { return cmdCancel_; }

    void setVisible(bool visible) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void arrange();
    void cmdOK_Click();
    void ValidateText();
    bool numeric() const { return format_ == Digits || format_ == Currency; }
    bool accepts(const QString& typed) const;

    int format_ = LettersAndDigits;
    QLabel* lblInstructions_;
    QLabel* lblPound_;
    QLineEdit* txtText_;
    QPushButton* cmdOK_;
    QPushButton* cmdCancel_;
};
