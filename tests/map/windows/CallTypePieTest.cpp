#include "map/windows/CallTypePie.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

namespace {

TEST(CallTypePie, IsHiddenWithoutFiguresAndTellsThemInWords) {
    CallTypePie pie;
    pie.setSplit(std::nullopt);
    EXPECT_FALSE(pie.isVisible());
    CallTypeSplit split;
    split.title = "Total Calls";
    split.total = 10;
    split.series[0] = {"UK Line", 4, 0x996CD5};
    split.series[3] = {"Mobile", 6, 0x1EC8E6};
    pie.setSplit(split);
    EXPECT_TRUE(pie.isVisible());
    EXPECT_TRUE(pie.accessibleDescription().contains("Mobile: 6 (60.0 %)"));
    pie.resize(pie.sizeHint());
    const QImage picture = pie.grab().toImage();
    bool mobile = false;
    for (int y = 0; y < picture.height() && !mobile; ++y) {
        for (int x = 0; x < picture.width(); ++x)
            mobile = mobile || picture.pixelColor(x, y) == QColor(0x1E, 0xC8, 0xE6);
    }
    EXPECT_TRUE(mobile);
    pie.setSplit(std::nullopt);
    EXPECT_FALSE(pie.isVisible());
    EXPECT_EQ(pie.accessibleDescription(), "");
}

} // namespace
