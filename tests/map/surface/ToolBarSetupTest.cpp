#include "map/surface/ToolBarSetup.h"

#include "core/RuntimeError.h"
#include "map/surface/MapSurface.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* MapWindow =
    ":BUTTON_VISIBLE:1,1,1,1,0,1,0,0,0,0,0,0,0,0,:TOOLTIPS:Zoom Extent,Pan,Zoom In,Zoom "
    "Out,Measure,Information,Information,Circle Query,Draw Point,Draw Polyline,Draw Polygon,Draw Circle,Hide "
    "Toolbar,Go Back,";

std::string refusal(const std::string& text) {
    try {
        ToolBarSetup::parse(text);
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), 380);
        return error.description();
    }
    return {};
}

} // namespace

TEST(ToolBarSetup, ButtonsAndTipsAreRead) {
    const ToolBarSetup setup = ToolBarSetup::parse(MapWindow);
    std::vector<MapTool> shown;
    for (std::size_t i = 0; i < ToolButtonCount; ++i) {
        if (setup.visible[i])
            shown.push_back(ToolButtons[i]);
    }
    EXPECT_EQ(shown, (std::vector{MapTool::ZoomToExtent, MapTool::Pan, MapTool::ZoomIn, MapTool::ZoomOut,
                                  MapTool::Information}));
    EXPECT_EQ(setup.toolTips[3], "Zoom Out");
    EXPECT_EQ(setup.toolTips[13], "Go Back");
    EXPECT_EQ(setup.text(), MapWindow);
}

TEST(ToolBarSetup, TipsMayBeEmptyAndTheLastCommaMissing) {
    const std::string flags = ":BUTTON_VISIBLE:1,1,1,1,1,1,1,1,1,1,1,1,1,1,";
    const ToolBarSetup setup = ToolBarSetup::parse(flags + ":TOOLTIPS:,,a:b,,,,,,,,,,,last");
    EXPECT_EQ(setup.toolTips[0], "");
    EXPECT_EQ(setup.toolTips[2], "a:b");
    EXPECT_EQ(setup.toolTips[13], "last");
}

TEST(ToolBarSetup, BrokenTextsAreRefusedWithTheReason) {
    const std::string good = MapWindow;
    EXPECT_NE(refusal("").find(":BUTTON_VISIBLE:"), std::string::npos);
    EXPECT_NE(refusal(":BUTTON_VISIBLE:1,1,").find(":TOOLTIPS:"), std::string::npos);
    EXPECT_NE(refusal(good + "more,").find("15 tool tips"), std::string::npos);
    EXPECT_NE(refusal(std::string(good).replace(16, 2, "")).find("13 flags"), std::string::npos);
    EXPECT_NE(refusal(std::string(good).replace(16, 1, "x")).find("'x'"), std::string::npos);

    MapSurface surface;
    surface.setToolBarSetup(good);
    EXPECT_THROW(surface.setToolBarSetup("nothing"), RuntimeError);
    EXPECT_EQ(surface.ToolBarSetup(), good) << "kept";
}
