#include "report/panels/ParameterPanel.h"

#include "ui/Skin.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr int headingWidth = 96;
constexpr int tabRoom = 6; ///< of the panels that have one; the others keep its room

QColor colourOf(ParameterPanel::Subject subject) {
    const cColours_CS colours = skinColours();
    switch (subject) {
    case ParameterPanel::Subject::Groups:
        return toColor(colours.Param_Groups());
    case ParameterPanel::Subject::AccCostCentre:
        return toColor(colours.Param_AccCostCentre());
    case ParameterPanel::Subject::DateTime:
        break;
    }
    return toColor(colours.Param_DateTime());
}

} // namespace

ParameterPanel::ParameterPanel(const QString& name, const QString& heading, Subject subject, QWidget* parent)
    : ucWebbyBorder(parent), heading_(new QLabel(heading, this)) {
    setObjectName(name);
    setAccessibleName(heading);
    setShowParamTab(true);
    setParamTabColor(colourOf(subject));
    setRole(*heading_, "section");
    heading_->setMinimumWidth(headingWidth);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
}

void ParameterPanel::setContent(QLayout* content) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(ShowParamTab() ? 16 : 16 + tabRoom, 8, 16, 8);
    row->setSpacing(8);
    heading_->setContentsMargins(0, 7, 0, 0);
    row->addWidget(heading_, 0, Qt::AlignTop);
    row->addLayout(content, 1);
}

QLabel* ParameterPanel::addLabel(QBoxLayout& row, const QString& text, QWidget* control) {
    auto* label = new QLabel(text, this);
    label->setBuddy(control);
    row.addWidget(label);
    return label;
}
