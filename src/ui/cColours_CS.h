#pragma once

#include "ui/cColours.h"

/// The colours of this product: the shared palette and what only maps and parameter panels need. Plain values, freely
/// copied.
class cColours_CS {
public:
    static constexpr int mapColours = 11;

    const cColours& palette() const { return palette_; }

    Colour colour(int row) const { return palette_.colour(row); }
    int Red(int row) const { return palette_.Red(row); }
    int Green(int row) const { return palette_.Green(row); }
    int Blue(int row) const { return palette_.Blue(row); }

    Colour Indigo(int shade) const { return palette_.Indigo(shade); }
    Colour pink(int shade) const { return palette_.pink(shade); }
    Colour Coral(int shade) const { return palette_.Coral(shade); }
    Colour Turquoise(int shade) const { return palette_.Turquoise(shade); }
    Colour Grey(int shade) const { return palette_.Grey(shade); }

    Colour DarkButtonColour() const { return palette_.DarkButtonColour(); }
    Colour ProjectNameColour() const { return palette_.ProjectNameColour(); }
    Colour GridSortColour() const { return palette_.GridSortColour(); }
    Colour CoreColour_Indigo() const { return palette_.CoreColour_Indigo(); }
    Colour CoreColour_Coral() const { return palette_.CoreColour_Coral(); }
    Colour CoreColour_Turquoise() const { return palette_.CoreColour_Turquoise(); }
    Colour GridTotalsColour() const { return palette_.GridTotalsColour(); }

    std::vector<Colour> SetGraphColours(ChartFamily family, int count) const {
        return palette_.SetGraphColours(family, count);
    }
    std::vector<Colour> SetExcelChartColours(ChartFamily family, int count, bool bForceOstelColours) const {
        return palette_.SetExcelChartColours(family, count, bForceOstelColours);
    }
    GridColours SetMSFlexGrid() const { return palette_.SetMSFlexGrid(); }
    GridColours SetTDBGrid() const { return palette_.SetTDBGrid(); }

    /// The colour bands of a thematic map, index 0 (lightest) to 10. Outside that throws RuntimeError 9.
    Colour MapColour(int index) const;

    /// The tabs of the parameter panels, by subject.
    Colour Param_DateTime() const { return Indigo(2); }
    Colour Param_CostRevenue() const { return Coral(1); }
    Colour Param_Duration() const { return Coral(2); }
    Colour Param_RingTime() const { return Coral(3); }
    Colour Param_Ineffective() const { return pink(6); }
    Colour Param_Groups() const { return pink(4); }
    Colour Param_AccCostCentre() const { return pink(3); }

private:
    cColours palette_;
};
