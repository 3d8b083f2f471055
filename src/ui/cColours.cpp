#include "ui/cColours.h"

#include "core/RuntimeError.h"

#include <array>

namespace {

constexpr std::array<Colour, cColours::rows> table{
    0xEFE5F7, 0xD4BFEC, 0x996CD5, 0x712DC2, 0x5514B4, 0x32008A, // Indigo
    0xFFE4FF, 0xFFB7FE, 0xFF80FF, 0xDC00E0, 0xB202D6, 0x7E0091, // pink
    0xFFECEE, 0xFFD0D2, 0xFF7A71, 0xFF5A4B, 0xE43828, 0xBA2212, // Coral
    0xE0F8FC, 0xB4ECF8, 0x4BD2EC, 0x1EC8E6, 0x028FB2, 0x00566E, // Turquoise
    0xF7F7F7, 0xF0F0F0, 0xD9D9D9, 0xAAAAAA, 0x6B6B6B, 0x2A2A2A, // Grey
};

/// DBDBDB is no shade of Grey, and F47A71 below none of Coral: customers know their charts in these colours.
constexpr std::array<Colour, cColours::chartRows> chartTable{
    0xEFE5F7, 0xD4BFEC, 0x996CD5, 0x712DC2, 0xFFE4FF, 0xFFB7FE, 0xFF80FF, 0xDC00E0,
    0xB202D6, 0xFFECEE, 0xFFD0D2, 0xFF7A71, 0xFF5A4B, 0xE43828, 0xBA2212, 0xE0F8FC,
    0xB4ECF8, 0x4BD2EC, 0x1EC8E6, 0x028FB2, 0xF0F0F0, 0xDBDBDB, 0xAAAAAA, 0x6B6B6B,
};

constexpr std::array<Colour, cColours::pointRows> pointTable{
    0x712DC2, 0xE43828, 0x1EC8E6, 0xAAAAAA, 0xFF80FF, 0x5514B4, 0xF47A71, 0xB4ECF8, 0x32008A, 0xB202D6,
    0xFF5A4B, 0x00566E, 0x996CD5, 0xFFB7FE, 0xBA2212, 0x028FB2, 0xD4BFEC, 0xFFD0D2, 0x4BD2EC, 0x7E0091,
};

template<std::size_t size>
Colour rowOf(const std::array<Colour, size>& colours, int row) {
    if (row < 1 || row > static_cast<int>(size))
        throw RuntimeError(9, "Subscript out of range: there is no colour " + std::to_string(row));
    return colours[static_cast<std::size_t>(row - 1)];
}

} // namespace

Colour cColours::colour(int row) const {
    return rowOf(table, row);
}

Colour cColours::ramp(int index, int shade) const {
    if (shade < 1 || shade > shades)
        throw RuntimeError(9, "Subscript out of range: there is no shade " + std::to_string(shade));
    return colour(index * shades + shade);
}

Colour cColours::chartColour(int row) const {
    return rowOf(chartTable, row);
}

Colour cColours::pointColour(int row) const {
    return rowOf(pointTable, row);
}

std::vector<Colour> cColours::SetGraphColours(ChartFamily family, int count) const {
    std::vector<Colour> colours;
    for (int row = 1; row <= count; ++row)
        colours.push_back(family == ChartFamily::Pie ? pointColour(row) : chartColour(row));
    return colours;
}

std::vector<Colour> cColours::SetExcelChartColours(ChartFamily family, int count, bool bForceOstelColours) const {
    std::vector<Colour> colours;
    for (int i = 0; i < count; ++i) {
        if (family == ChartFamily::Pie)
            colours.push_back(pointColour(i % pointRows + 1));
        else if (bForceOstelColours)
            colours.push_back(chartColour(i % chartRows + 1));
        else
            colours.push_back(i % 2 == 0 ? CoreColour_Indigo() : CoreColour_Coral());
    }
    return colours;
}
