#pragma once

#include "ui/ucWebbyBorder.h"

class QBoxLayout;
class QLabel;

/// A panel of the main window: its subject at the left, its controls beside it, the colour of its subject as a tab. It
/// keeps its room while it is hidden, so that nothing jumps.
class ParameterPanel : public ucWebbyBorder {
    Q_OBJECT

public:
    enum class Subject { DateTime, Groups, AccCostCentre };
    ParameterPanel(const QString& name, const QString& heading, Subject subject, QWidget* parent);

protected:
    /// Puts what follows the heading.
    void setContent(QLayout* content);
    /// A text before a control; its mnemonic leads there.
    QLabel* addLabel(QBoxLayout& row, const QString& text, QWidget* control);

private:
    QLabel* heading_;
};
