#include "multimap/MultiMapPicture.h"

#include "map/surface/MapKey.h"
#include "map/surface/MapSurface.h"
#include "multimap/MultiMapSession.h"
#include "multimap/MultiMapWorkbook.h"
#include "ui/cColours_CS.h"

#include <gtest/gtest.h>

namespace {

/// A view of 400 x 300 on two maps, one green and one blue, of which the second reaches out of it at the foot.
struct TwoMaps {
    explicit TwoMaps(double ratio) {
        picture.title = "TV Regions";
        picture.view = {400, 300};
        picture.fontFamily = "Calibri";
        picture.devicePixelRatio = ratio;
        key.RebuildKey();
        addMap(QRectF(10, 30, 180, 200), Qt::green, ratio);
        addMap(QRectF(210, 200, 180, 200), Qt::blue, ratio);
        picture.maps[0].bars[0] = {"Mobile", 5, {}};
    }
    void addMap(const QRectF& place, Qt::GlobalColor colour, double ratio) {
        MapOfPicture map{.period = "From", .map = place, .image = QImage(), .bars = {}};
        map.image = QImage((place.size() * ratio).toSize(), QImage::Format_RGB32);
        map.image.fill(colour);
        picture.maps.push_back(map);
    }

    MapSurface surface;
    MapKey key{surface};
    MultiMapPicture picture;
};

TEST(MultiMapPicture, ShowsTheViewWithTheKeyBesideIt) {
    for (const double ratio : {1.0, 2.0}) {
        const TwoMaps maps(ratio);
        const QImage image = drawMultiMapPicture(maps.picture, maps.key);
        EXPECT_EQ(image.height(), 300 * ratio);
        const int side = image.width() - static_cast<int>(400 * ratio);
        ASSERT_GT(side, 100 * ratio) << "room for the key";
        const auto colourAt = [&](double x, double y) {
            return image.pixelColor(side + static_cast<int>(x * ratio), static_cast<int>(y * ratio));
        };
        EXPECT_EQ(colourAt(100, 130), QColor(Qt::green));
        EXPECT_EQ(colourAt(300, 250), QColor(Qt::blue));
        EXPECT_EQ(colourAt(300, 150), QColor(Qt::white));
        EXPECT_EQ(colourAt(20, 243), QColor::fromRgb(cColours_CS().MapColour(5))) << "the bar below the first map";
    }
}

TEST(MultiMapPicture, NothingReachesOverTheKey) {
    TwoMaps maps(1);
    const QImage before = drawMultiMapPicture(maps.picture, maps.key);
    maps.picture.maps[0].map.translate(-150, 0);
    const QImage scrolled = drawMultiMapPicture(maps.picture, maps.key);
    const QRect side(0, 0, scrolled.width() - 400, 300);
    EXPECT_EQ(scrolled.copy(side), before.copy(side));
    EXPECT_NE(scrolled, before);
}

TEST(MultiMapWorkbook, TellsTheMeasureAndThePeriodOfEachMap) {
    TwoMaps maps(1);
    MultiMapSession session({&maps.surface}, maps.key);
    MultiMapParameters ranges{.OptPeriods = 1};
    for (std::size_t n = 0; n < 4; ++n) {
        ranges.DTPicker1[4 * n].days = 46'023.0 + static_cast<double>(n);
        ranges.DTPicker1[4 * n + 2].days = 46'024.0 + static_cast<double>(n);
    }
    session.begin(2, ranges);
    const std::vector<ParameterLine> lines = parametersOfMaps(session);
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[0].value, "Total Calls");
    EXPECT_EQ(lines[4].name, "Map 4=");
    EXPECT_EQ(lines[4].value, "From 04/01/2026 00:00:00 to 05/01/2026 00:00:00");
}

} // namespace
