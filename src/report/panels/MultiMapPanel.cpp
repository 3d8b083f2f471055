#include "report/panels/MultiMapPanel.h"

#include "core/ModDeclarations.h"
#include "report/form/DateRanges.h"
#include "report/form/RequireProject.h"
#include "report/panels/DTPicker.h"
#include "report/panels/OptionGroup.h"
#include "report/panels/ReportButtons.h"
#include "ui/ucWebbyLink.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

namespace {

/// The labels of the maps by their names in the window.
constexpr int mapLabelNumbers[] = {1, 6, 10, 14, 18, 22};

} // namespace

MultiMapPanel::MultiMapPanel(QWidget* parent)
    : ParameterPanel(QStringLiteral("Frame9"), tr("Several maps"), Subject::DateTime, parent),
      OptPeriods(new OptionGroup(QStringLiteral("OptPeriods"), OptionGroup::Needs::Nothing, this)),
      OptBoundaries(new OptionGroup(QStringLiteral("OptBoundaries"), OptionGroup::Needs::Nothing, this)) {
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    column->addLayout(choices());
    column->addLayout(table());
    setContent(column);
    connect(OptPeriods, &OptionGroup::picked, this, &MultiMapPanel::OptPeriods_Click);
    MultiMapParameters wholeDays;
    for (std::size_t i = 0; i < pickers; ++i)
        if (isTimeColumn(static_cast<int>(i)))
            wholeDays.DTPicker1[i] = ReportParameters().DTStartTime[i % 4 == 1 ? 0 : 1];
    show(wholeDays);
    OptPeriods_Click();
}

QLayout* MultiMapPanel::choices() {
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    for (const char* caption : {"&2 Maps", "&4 Maps", "&6 Maps"})
        row->addWidget(OptPeriods->add(tr(caption), this));
    row->addSpacing(16);
    for (const char* caption : {"TV Regions", "Post Code Districts"}) {
        QRadioButton* boundary = OptBoundaries->add(tr(caption), this);
        boundary->setToolTip(tr("What the areas of the maps are"));
        row->addWidget(boundary);
    }
    row->addStretch(1);
    create_ = ReportButtons::makeButton(ReportButtons::multipleMaps, tr("Create multiple map vie&ws"), this);
    connect(create_, &ucWebbyLink::clicked, this, [this] { emit requested(ReportButtons::multipleMaps); });
    row->addWidget(create_);
    return row;
}

QLayout* MultiMapPanel::table() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(4);
    addHeads(*grid);
    for (int map = 0; map < mostMaps; ++map)
        addMap(*grid, map);
    for (int column = 1; column <= pickersOfMap; ++column)
        grid->setColumnStretch(column, 1);
    return grid;
}

void MultiMapPanel::addHeads(QGridLayout& grid) {
    const QString captions[] = {tr("Same start dates"), tr("Same start times"), tr("Same end dates"),
                                tr("Same end times")};
    for (int column = 0; column < pickersOfMap; ++column) {
        auto* box = new QCheckBox(captions[column], this);
        box->setObjectName(QStringLiteral("ChkSame_%1").arg(column));
        box->setToolTip(tr("All maps take what map 1 has in this column"));
        connect(box, &QCheckBox::clicked, this, [this, column] { ChkSame_Click(column); });
        ChkSame[static_cast<std::size_t>(column)] = box;
        grid.addWidget(box, 0, column + 1);
    }
}

void MultiMapPanel::addMap(QGridLayout& grid, int map) {
    const QString spoken[] = {tr("start date"), tr("start time"), tr("end date"), tr("end time")};
    auto* label = new QLabel(tr("Map %1").arg(map + 1), this);
    label->setObjectName(QStringLiteral("Label%1").arg(mapLabelNumbers[map]));
    mapLabels_[static_cast<std::size_t>(map)] = label;
    grid.addWidget(label, map + 1, 0);
    for (int column = 0; column < pickersOfMap; ++column) {
        const int index = map * pickersOfMap + column;
        const auto holds = isTimeColumn(column) ? DTPicker::Holds::TimeOfDay : DTPicker::Holds::Day;
        auto* picker = new DTPicker(QStringLiteral("DTPicker1_%1").arg(index), holds, this);
        picker->setAccessibleName(tr("Map %1, %2").arg(map + 1).arg(spoken[column]));
        picker->setToolTip(picker->accessibleName());
        connect(picker, &DTPicker::changed, this, [this] { DTPicker1_Event("FrmMain_DTPicker1_Change"); });
        connect(picker, &DTPicker::clicked, this, [this] { DTPicker1_Event("FrmMain_DTPicker1_Click"); });
        connect(picker, &DTPicker::keyPressed, this, [this] { DTPicker1_Event("FrmMain_DTPicker1_KeyPress"); });
        DTPicker1[static_cast<std::size_t>(index)] = picker;
        grid.addWidget(picker, map + 1, column + 1);
    }
}

void MultiMapPanel::OptPeriods_Click() {
    gsCurrentProc = "FrmMain_OptPeriods_Click";
    const int shown = mapCount(parameters());
    for (int map = 0; map < mostMaps; ++map) {
        mapLabels_[static_cast<std::size_t>(map)]->setVisible(map < shown);
        for (int column = 0; column < pickersOfMap; ++column) {
            DTPicker* picker = DTPicker1[static_cast<std::size_t>(map * pickersOfMap + column)];
            picker->setVisible(map < shown);
            picker->setEnabled(enabled_ && map < shown);
        }
    }
}

void MultiMapPanel::DTPicker1_Event(const char* name) {
    gsCurrentProc = name;
    for (int column = 0; column < pickersOfMap; ++column)
        if (ChkSame[static_cast<std::size_t>(column)]->isChecked())
            copyColumn(column);
}

void MultiMapPanel::ChkSame_Click(int column) {
    QCheckBox* box = ChkSame[static_cast<std::size_t>(column)];
    if (!requireProject())
        box->setChecked(!box->isChecked());
    else if (box->isChecked())
        copyColumn(column);
}

void MultiMapPanel::copyColumn(int column) {
    MultiMapParameters ranges = parameters();
    copyToAllMaps(ranges, column);
    show(ranges);
}

/// Pickers that show the value already are left alone, for the user may be in the midst of one.
void MultiMapPanel::show(const MultiMapParameters& ranges) {
    for (std::size_t i = 0; i < pickers; ++i)
        if (DTPicker1[i]->value() != ranges.DTPicker1[i])
            DTPicker1[i]->setValue(ranges.DTPicker1[i]);
}

MultiMapParameters MultiMapPanel::parameters() const {
    MultiMapParameters ranges;
    ranges.OptPeriods = OptPeriods->chosen();
    for (std::size_t i = 0; i < pickers; ++i)
        ranges.DTPicker1[i] = DTPicker1[i]->value();
    return ranges;
}

bool MultiMapPanel::postCodeDistricts() const {
    return OptBoundaries->chosen() == 1;
}

void MultiMapPanel::setPeriod(const ProjectPeriod& period) {
    MultiMapParameters ranges = parameters();
    setDays(ranges, period);
    show(ranges);
}

void MultiMapPanel::restore(const MultiMapSettings& settings) {
    OptBoundaries->choose(settings.boundaryType == "PostcodeDistrict" ? 1 : 0);
    OptPeriods->choose(settings.ranges.OptPeriods);
    show(settings.ranges);
    OptPeriods_Click();
}

void MultiMapPanel::setControlsEnabled(bool enabled) {
    enabled_ = enabled;
    OptPeriods->setEnabled(enabled);
    OptBoundaries->setEnabled(enabled);
    for (QCheckBox* box : ChkSame)
        box->setEnabled(enabled);
    const int shown = mapCount(parameters()) * pickersOfMap;
    for (std::size_t i = 0; i < pickers; ++i)
        DTPicker1[i]->setEnabled(enabled && static_cast<int>(i) < shown);
    ReportButtons::enableButton(*create_, enabled && projectIsOpen());
}
