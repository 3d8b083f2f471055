#pragma once

#include "report/panels/ChoiceBox.h"
#include "report/panels/OptionGroup.h"
#include "report/panels/ParameterPanel.h"

class QGridLayout;

/// A panel that asks "all, or which": options of which the first stands for all and each other for a list.
class ChoicePanel : public ParameterPanel {
    Q_OBJECT

public:
    ChoicePanel(const QString& name, const QString& heading, Subject subject, const QString& optionName,
                QWidget* parent);

    int option() const { return options_->chosen(); }
    /// As the user's click on the option.
    void pick(int option);
    /// "All", the lists empty and closed. What was chosen before is not remembered.
    void reset();
    void setControlsEnabled(bool enabled);

protected:
    void addAll(const QString& caption);
    /// An option and its list, which is owned by the panel.
    void addChoice(const QString& caption, ChoiceBox* box);
    /// A control at the right end, where there is one list only.
    void addAtEnd(QWidget* control);
    /// Once everything is in.
    void arrange();
    /// The rows of an option's list; an option that is not available cannot be picked and says why.
    void offer(int option, const ChoiceList& list, const QString& whyNot);
    QAbstractButton* optionButton(int option) const { return options_->button(option); }

private:
    void follow();

    OptionGroup* options_;
    QGridLayout* row_;
    QList<ChoiceBox*> boxes_; ///< of the options from 1 on
};
