#pragma once

#include <cstdint>
#include <vector>

/// A colour of the screen as 0xRRGGBB.
using Colour = std::uint32_t;

constexpr int redOf(Colour colour) {
    return static_cast<int>(colour >> 16 & 0xFF);
}
constexpr int greenOf(Colour colour) {
    return static_cast<int>(colour >> 8 & 0xFF);
}
constexpr int blueOf(Colour colour) {
    return static_cast<int>(colour & 0xFF);
}

enum class ChartFamily { Pie, Series };

/// How a data grid is painted: heads and record selector, and the selected row.
struct GridColours {
    Colour head;
    Colour selectedBack;
    Colour selectedText;
};

/// The palette that all products of the family share: five ramps of six shades from light (1) to dark (6), a table of
/// chart series and one of chart points. Rows count from 1. An index outside its table throws RuntimeError 9 (subscript
/// out of range).
class cColours {
public:
    static constexpr int shades = 6;
    static constexpr int rows = 30;
    static constexpr int chartRows = 24;
    static constexpr int pointRows = 20;

    Colour colour(int row) const; ///< 1 to 30, ramp after ramp
    int Red(int row) const { return redOf(colour(row)); }
    int Green(int row) const { return greenOf(colour(row)); }
    int Blue(int row) const { return blueOf(colour(row)); }

    Colour Indigo(int shade) const { return ramp(0, shade); }
    Colour pink(int shade) const { return ramp(1, shade); }
    Colour Coral(int shade) const { return ramp(2, shade); }
    Colour Turquoise(int shade) const { return ramp(3, shade); }
    Colour Grey(int shade) const { return ramp(4, shade); }

    Colour DarkButtonColour() const { return Grey(3); }
    Colour ProjectNameColour() const { return Coral(6); }
    Colour GridSortColour() const { return Turquoise(1); }
    Colour CoreColour_Indigo() const { return 0x5514B4; }
    Colour CoreColour_Coral() const { return 0xFF5A4B; }
    Colour CoreColour_Turquoise() const { return 0x1EC8E6; }
    Colour GridTotalsColour() const { return 0xB4ECF8; }

    Colour chartColour(int row) const; ///< of a chart's series, 1 to 24
    Colour pointColour(int row) const; ///< of a pie's or bar's point, 1 to 20
    Colour Usage() const { return pointColour(1); }
    Colour Recurring() const { return pointColour(2); }
    Colour Adjustments() const { return pointColour(3); }
    Colour OneOff() const { return pointColour(4); }

    /// The colours of `count` points of a pie, or of `count` series, on screen. Throws where the table ends.
    std::vector<Colour> SetGraphColours(ChartFamily family, int count) const;
    /// The same for a chart in a workbook: the points of a pie begin again after 20. Series alternate the two core
    /// colours, or with `bForceOstelColours` run through the chart table.
    std::vector<Colour> SetExcelChartColours(ChartFamily family, int count, bool bForceOstelColours) const;
    GridColours SetMSFlexGrid() const { return {Indigo(2), Indigo(6), 0xFFFFFF}; }
    GridColours SetTDBGrid() const { return {Indigo(2), Indigo(6), 0xFFFFFF}; }

private:
    Colour ramp(int index, int shade) const;
};
