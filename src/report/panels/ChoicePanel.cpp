#include "report/panels/ChoicePanel.h"

#include <QGridLayout>
#include <QRadioButton>

namespace {

/// Columns of "all", an option, its list, a gap, an option, its list: they stand below each other in all panels.
constexpr int columnWidths[] = {136, 120, 104, 8, 152, 104};

constexpr int columnOfOption(int option) {
    return option == 0 ? 0 : 3 * option - 2;
}

} // namespace

ChoicePanel::ChoicePanel(const QString& name, const QString& heading, Subject subject, const QString& optionName,
                         QWidget* parent)
    : ParameterPanel(name, heading, subject, parent),
      options_(new OptionGroup(optionName, OptionGroup::Needs::Project, this)), row_(new QGridLayout) {
    row_->setHorizontalSpacing(8);
    int column = 0;
    for (const int width : columnWidths)
        row_->setColumnMinimumWidth(column++, width);
    for (int option : {1, 2})
        row_->setColumnStretch(columnOfOption(option) + 1, 1);
    connect(options_, &OptionGroup::picked, this, &ChoicePanel::follow);
}

void ChoicePanel::addAll(const QString& caption) {
    row_->addWidget(options_->add(caption, this), 0, 0);
}

void ChoicePanel::addChoice(const QString& caption, ChoiceBox* box) {
    QRadioButton* option = options_->add(caption, this);
    box->setParent(this);
    boxes_.append(box);
    const int column = columnOfOption(static_cast<int>(boxes_.size()));
    row_->addWidget(option, 0, column);
    row_->addWidget(box, 0, column + 1);
    setTabOrder(option, box);
}

void ChoicePanel::addAtEnd(QWidget* control) {
    row_->addWidget(new QWidget(this), 0, columnOfOption(2)); // a column without a widget takes no gap
    row_->addWidget(control, 0, columnOfOption(2) + 1, Qt::AlignRight);
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
