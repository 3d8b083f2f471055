#include "map/windows/MapStatusPanel.h"

#include "ui/ElidedLabel.h"

#include <QGridLayout>

namespace {

constexpr int gap = 6;
enum Label { Min, StartDate, EndDate, StartTime, EndTime, Max };

} // namespace

MapStatusPanel::MapStatusPanel(QWidget* parent) : QWidget(parent), lblParameters(new QLabel(this)) {
    constexpr const char* texts[] = {"Min =", "Start Date", "End Date", "Start Time", "End Time", "Max ="};
    for (std::size_t at = 0; at < LabelStatus.size(); ++at)
        LabelStatus[at] = makeLabel(QStringLiteral("LabelStatus_%1").arg(at), tr(texts[at]), "caption");
    for (std::size_t at = 0; at < LblStatusValue.size(); ++at)
        LblStatusValue[at] = makeLabel(QStringLiteral("LblStatusValue_%1").arg(at), QString());
    for (const std::size_t value : {5, 7})
        LblStatusValue[value]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblParameters->setObjectName(QStringLiteral("lblParameters"));
    lblParameters->setWordWrap(true);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(2 * gap);
    grid->setVerticalSpacing(gap);
    grid->setColumnStretch(1, 1);
    const auto addPair = [&](int row, Label label, std::size_t name, std::size_t value) {
        grid->addWidget(LabelStatus[label], row, 0);
        grid->addWidget(LblStatusValue[name], row, 1);
        grid->addWidget(LblStatusValue[value], row, 2);
    };
    addPair(0, Max, 4, 5);
    addPair(1, Min, 6, 7);
    constexpr Label periods[] = {StartDate, EndDate, StartTime, EndTime};
    for (int at = 0; at < 4; ++at) {
        grid->addWidget(LabelStatus[periods[at]], at + 2, 0);
        grid->addWidget(LblStatusValue[static_cast<std::size_t>(at)], at + 2, 1, 1, 2);
    }
    grid->addWidget(lblParameters, 6, 0, 1, 3);
}

QLabel* MapStatusPanel::makeLabel(const QString& name, const QString& text, const char* role) {
    auto* label = new ElidedLabel(this);
    label->setText(text);
    label->setObjectName(name);
    if (role)
        label->setProperty("role", role);
    return label;
}

void MapStatusPanel::showState(const MapFormState& form, bool withMinimum, const std::string& parameters) {
    for (std::size_t at = 0; at < LblStatusValue.size(); ++at)
        LblStatusValue[at]->setText(QString::fromStdString(form.LblStatusValue[at]));
    for (QLabel* label : {LabelStatus[Min], LblStatusValue[6], LblStatusValue[7]})
        label->setVisible(withMinimum);
    lblParameters->setText(QString::fromStdString(parameters));
    lblParameters->setVisible(!parameters.empty());
}
