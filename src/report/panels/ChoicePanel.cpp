#include "report/panels/ChoicePanel.h"

#include <QHBoxLayout>
#include <QRadioButton>

ChoicePanel::ChoicePanel(const QString& name, const QString& heading, Subject subject, const QString& optionName,
                         QWidget* parent)
    : ParameterPanel(name, heading, subject, parent),
      options_(new OptionGroup(optionName, OptionGroup::Needs::Project, this)), row_(new QHBoxLayout) {
    row_->setSpacing(8);
    connect(options_, &OptionGroup::picked, this, &ChoicePanel::follow);
}

void ChoicePanel::addAll(const QString& caption) {
    QRadioButton* all = options_->add(caption, this);
    all->setMinimumWidth(112);
    row_->addWidget(all);
}

void ChoicePanel::addChoice(const QString& caption, ChoiceBox* box) {
    QRadioButton* option = options_->add(caption, this);
    box->setParent(this);
    boxes_.append(box);
    row_->addSpacing(8);
    row_->addWidget(option);
    row_->addWidget(box, 1);
    setTabOrder(option, box);
}

void ChoicePanel::arrange() {
    setContent(row_);
}

void ChoicePanel::pick(int option) {
    options_->choose(option);
    follow();
}

/// Lists that are left keep their choice in mind before another one takes over.
void ChoicePanel::follow() {
    for (int i = 0; i < boxes_.size(); ++i)
        boxes_[i]->setStanding(i + 1 == option());
}

void ChoicePanel::reset() {
    options_->choose(0);
    for (ChoiceBox* box : boxes_)
        box->reset();
}

void ChoicePanel::setControlsEnabled(bool enabled) {
    options_->setEnabled(enabled);
    for (ChoiceBox* box : boxes_)
        box->setFormEnabled(enabled);
}

void ChoicePanel::offer(int option, const ChoiceList& list, const QString& whyNot) {
    if (!list.available && this->option() == option)
        pick(0);
    boxes_[option - 1]->offer(list);
    options_->setAvailable(option, list.available);
    options_->button(option)->setToolTip(list.available ? QString() : whyNot);
}
