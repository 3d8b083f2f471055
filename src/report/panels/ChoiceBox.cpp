#include "report/panels/ChoiceBox.h"

#include "report/form/Typing.h"

#include <QAbstractItemView>
#include <QWheelEvent>

ChoiceBox::ChoiceBox(const QString& name, const QString& spokenName, QWidget* parent) : QComboBox(parent) {
    setObjectName(name);
    setAccessibleName(spokenName);
    setFocusPolicy(Qt::StrongFocus);
    setInsertPolicy(QComboBox::NoInsert);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(12);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // its panel shares the width out
    setMaxVisibleItems(16);
    view()->setTextElideMode(Qt::ElideRight);
    connect(this, &QComboBox::activated, this, &ChoiceBox::remember);
    connect(this, &QComboBox::currentTextChanged, this, [this](const QString& text) { setToolTip(text); });
    setEnabled(false);
}

void ChoiceBox::offer(const ChoiceList& list) {
    rows_ = list.rows;
    remembered_ = list.remembered;
    clear();
    QStringList texts;
    for (const std::string& row : rows_)
        texts.append(QString::fromStdString(row));
    addItems(texts);
    if (standing_)
        bringBack();
    else
        clearChoice();
}

void ChoiceBox::setStanding(bool standing) {
    if (standing_ && !standing)
        remember();
    const bool arrived = standing && !standing_;
    standing_ = standing;
    if (arrived)
        bringBack();
    else if (!standing)
        clearChoice();
    enable();
}

void ChoiceBox::reset() {
    standing_ = false;
    clearChoice();
    enable();
}

void ChoiceBox::setFormEnabled(bool enabled) {
    formEnabled_ = enabled;
    enable();
}

bool ChoiceBox::holdsRow() const {
    return isRow(rows_, text());
}

void ChoiceBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void ChoiceBox::remember() {
    if (holdsRow())
        remembered_ = text();
}

void ChoiceBox::bringBack() {
    const int row = findText(QString::fromStdString(remembered_), Qt::MatchExactly | Qt::MatchCaseSensitive);
    setCurrentIndex(row >= 0 ? row : count() > 0 ? 0 : -1);
}

void ChoiceBox::clearChoice() {
    setCurrentIndex(-1);
    if (isEditable())
        clearEditText();
}

void ChoiceBox::enable() {
    setEnabled(formEnabled_ && standing_);
}
