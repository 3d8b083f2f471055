#include "report/panels/ReportButtons.h"

#include "report/form/RequireProject.h"
#include "ui/ucWebbyLink.h"

#include <QHBoxLayout>

namespace {

QString actionOf(int index) {
    switch (index) {
    case ReportButtons::chooseProject:
        return ReportButtons::tr("Select the project for which you want to view the reports");
    case ReportButtons::multipleMaps:
        return ReportButtons::tr("Create multiple map views using the settings selected in this panel");
    case ReportButtons::exchanges:
        return ReportButtons::tr("Show data within Exchange location boundaries");
    case ReportButtons::csgs:
        return ReportButtons::tr("Show data with Calling Subscriber Geography boundaries");
    case ReportButtons::postCodeDistricts:
        return ReportButtons::tr("Show data within Post Code District boundaries");
    case ReportButtons::tvRegions:
        return ReportButtons::tr("Show data within TV Regions");
    default:
        return ReportButtons::tr("Show data for selected Customer Groups");
    }
}

} // namespace

ReportButtons::ReportButtons(QWidget* parent)
    : ParameterPanel(QStringLiteral("Frame7"), tr("Map by"), Subject::DateTime, parent) {
    setShowParamTab(false);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    add(tvRegions, tr("TV &Regions"), *row);
    add(postCodeDistricts, tr("Post Code Di&stricts"), *row);
    add(customerGroups, tr("Custo&mer Groups"), *row);
    add(exchanges, tr("E&xchanges"), *row);
    add(csgs, tr("CS&Gs"), *row);
    row->addStretch(1);
    buttons_.front()->setKind(ucWebbyLink::Kind::Primary);
    setContent(row);
}

void ReportButtons::add(int index, const QString& caption, QLayout& row) {
    ucWebbyLink* button = makeButton(index, caption, this);
    connect(button, &ucWebbyLink::clicked, this, [this, index] { emit requested(index); });
    row.addWidget(button);
    buttons_.append(button);
}

void ReportButtons::setControlsEnabled(bool enabled) {
    for (ucWebbyLink* button : buttons_)
        enableButton(*button, enabled && projectIsOpen());
}

ucWebbyLink* ReportButtons::makeButton(int index, const QString& caption, QWidget* parent) {
    auto* button = new ucWebbyLink(caption, ucWebbyLink::Kind::Outlined, parent);
    button->setObjectName(QStringLiteral("cmdReport_%1").arg(index));
    button->setAccessibleDescription(actionOf(index));
    button->setToolTip(actionOf(index));
    return button;
}

void ReportButtons::enableButton(ucWebbyLink& button, bool enabled) {
    button.setEnabled(enabled);
    button.setToolTip(enabled           ? button.accessibleDescription()
                      : projectIsOpen() ? tr("Not while a report runs")
                                        : tr("Open a project first: choose one at the left"));
}
