#pragma once

#include <QDialog>

/// A palette of the colours of customer groups. Modal.
class frmColours : public QDialog {
    Q_OBJECT

public:
    explicit frmColours(QWidget* parent = nullptr);

    /// `Result` is the place of the chosen colour in the palette, from 0; 0 on Cancel, too.
    void ChooseColour(int& Result);

private:
    int chosen_ = 0;
};
