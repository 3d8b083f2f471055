#pragma once

#include "report/CaptureRow.h"
#include "report/ProjectPeriod.h"
#include "report/panels/ParameterPanel.h"
#include "stats/ModData_GetMultiMapData.h"

#include <array>

class DTPicker;
class OptionGroup;
class QCheckBox;
class QGridLayout;
class QLabel;
class ucWebbyLink;

/// Days and hours of each of several maps, what they show, and the button that makes them.
class MultiMapPanel : public ParameterPanel {
    Q_OBJECT

public:
    explicit MultiMapPanel(QWidget* parent);

    MultiMapParameters parameters() const;
    bool postCodeDistricts() const; ///< else TV regions
    /// Days of all maps; times stay.
    void setPeriod(const ProjectPeriod& period);
    void restore(const MultiMapSettings& settings);
    /// Enabling leaves out the pickers of maps that are not shown.
    void setControlsEnabled(bool enabled);

signals:
    void requested(int index);

private:
    static constexpr std::size_t pickers = 24;

    QLayout* choices();
    QLayout* table();
    void addHeads(QGridLayout& grid);
    void addMap(QGridLayout& grid, int map);
    void OptPeriods_Click();
    void DTPicker1_Event(const char* name);
    void ChkSame_Click(int column);
    void copyColumn(int column);
    void show(const MultiMapParameters& ranges);

    OptionGroup* OptPeriods;
    OptionGroup* OptBoundaries;
    std::array<QCheckBox*, 4> ChkSame{};
    std::array<QLabel*, 6> mapLabels_{};
    std::array<DTPicker*, pickers> DTPicker1{};
    ucWebbyLink* create_ = nullptr;
    bool enabled_ = true;
};
