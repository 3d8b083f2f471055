#include "core/RuntimeError.h"
#include "ui/cColours_CS.h"

#include <gtest/gtest.h>

namespace {

TEST(Palette, RampsLieOneBehindTheOther) {
    const cColours colours;
    const struct {
        Colour (cColours::*ramp)(int) const;
        int firstRow;
        Colour lightest, darkest;
    } ramps[] = {{&cColours::Indigo, 1, 0xEFE5F7, 0x32008A},
                 {&cColours::pink, 7, 0xFFE4FF, 0x7E0091},
                 {&cColours::Coral, 13, 0xFFECEE, 0xBA2212},
                 {&cColours::Turquoise, 19, 0xE0F8FC, 0x00566E},
                 {&cColours::Grey, 25, 0xF7F7F7, 0x2A2A2A}};
    for (const auto& ramp : ramps) {
        EXPECT_EQ((colours.*ramp.ramp)(1), ramp.lightest);
        EXPECT_EQ((colours.*ramp.ramp)(6), ramp.darkest);
        for (int shade = 1; shade <= 6; ++shade)
            EXPECT_EQ((colours.*ramp.ramp)(shade), colours.colour(ramp.firstRow + shade - 1));
        EXPECT_THROW((colours.*ramp.ramp)(0), RuntimeError);
        EXPECT_THROW((colours.*ramp.ramp)(7), RuntimeError);
    }
    EXPECT_EQ(colours.Red(18), 0xBA);
    EXPECT_EQ(colours.Green(18), 0x22);
    EXPECT_EQ(colours.Blue(18), 0x12);
    EXPECT_THROW(colours.colour(0), RuntimeError);
    EXPECT_THROW(colours.colour(31), RuntimeError);
}

TEST(Palette, MapColoursRunFromLightToDarkCoral) {
    const cColours_CS colours;
    const Colour expected[] = {0xFFECEE, 0xFFDEE0, 0xFFD0D2, 0xFFA5A1, 0xFF7A71, 0xFF6A5E,
                               0xFF5A4B, 0xFF4939, 0xE43828, 0xFF2D1D, 0xBA2212};
    for (int i = 0; i < 11; ++i)
        EXPECT_EQ(colours.MapColour(i), expected[i]) << i;
    EXPECT_THROW(colours.MapColour(-1), RuntimeError);
    EXPECT_THROW(colours.MapColour(11), RuntimeError);
}

TEST(Palette, ChartsEndOrRepeatAsTheirTablesSay) {
    const cColours colours;
    EXPECT_EQ(colours.SetGraphColours(ChartFamily::Series, 24).back(), 0x6B6B6Bu);
    EXPECT_THROW(colours.SetGraphColours(ChartFamily::Series, 25), RuntimeError);
    EXPECT_EQ(colours.SetGraphColours(ChartFamily::Pie, 20)[6], 0xF47A71u) << "not the shade of Coral";
    EXPECT_THROW(colours.SetGraphColours(ChartFamily::Pie, 21), RuntimeError);
    EXPECT_EQ(colours.SetGraphColours(ChartFamily::Series, 22).back(), 0xDBDBDBu) << "not the shade of Grey";

    const auto points = colours.SetExcelChartColours(ChartFamily::Pie, 21, false);
    EXPECT_EQ(points[20], points[0]);
    EXPECT_EQ(points[19], 0x7E0091u);
    EXPECT_EQ(colours.SetExcelChartColours(ChartFamily::Series, 3, false),
              (std::vector<Colour>{0x5514B4, 0xFF5A4B, 0x5514B4}));
}

} // namespace
