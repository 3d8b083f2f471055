#include "report/panels/OptionGroup.h"

#include "report/form/RequireProject.h"

#include <QRadioButton>

OptionGroup::OptionGroup(const QString& name, Needs needs, QObject* parent) : QButtonGroup(parent), needs_(needs) {
    setObjectName(name);
    connect(this, &QButtonGroup::idClicked, this, &OptionGroup::take);
}

QRadioButton* OptionGroup::add(const QString& caption, QWidget* parent) {
    const int option = static_cast<int>(buttons().size());
    auto* button = new QRadioButton(caption, parent);
    button->setObjectName(QStringLiteral("%1_%2").arg(objectName()).arg(option));
    addButton(button, option);
    available_.append(true);
    button->setChecked(option == chosen_);
    return button;
}

void OptionGroup::choose(int option) {
    chosen_ = option;
    button(option)->setChecked(true);
}

void OptionGroup::setAvailable(int option, bool available) {
    available_[option] = available;
    enableOptions();
}

void OptionGroup::setEnabled(bool enabled) {
    enabled_ = enabled;
    enableOptions();
}

void OptionGroup::enableOptions() {
    for (int option = 0; option < available_.size(); ++option)
        button(option)->setEnabled(enabled_ && available_[option]);
}

void OptionGroup::take(int option) {
    if (option == chosen_)
        return;
    if (needs_ == Needs::Project && !requireProject()) {
        button(chosen_)->setChecked(true);
        return;
    }
    chosen_ = option;
    emit picked(option);
}
