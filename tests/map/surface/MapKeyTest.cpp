#include "map/surface/MapKey.h"

#include "map/surface/LabelPainter.h"
#include "map/surface/MapSurface.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>

namespace {

/// A surface with one key layer of the given names and a second layer that the key leaves out.
void fillSurface(MapSurface& surface, const std::vector<std::string>& names) {
    surface.layer().LayerName = "Map Colour Key";
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i > 0)
            surface.AddSymbol();
        surface.setSymbolIndex(surface.NumberOfSymbols() - 1);
        surface.symbol().SymbolName = names[i];
        surface.symbol().SymbolPolygonColor = i % 2 == 0 ? 0x0000FF : 0x00FF00;
    }
    surface.AddLayer();
    surface.setLayerIndex(1);
    surface.layer().LayerName = "Map Labels";
    surface.layer().LayerShownInKey = false;
}

bool isLight(const QImage& image, int x, int y) {
    return qGray(image.pixel(x, y)) > 200;
}

} // namespace

TEST(MapKey, ListsTheLayersThatAreShownInTheKey) {
    MapSurface surface;
    fillSurface(surface, {"0", "1 to 2", " 3 + "});
    MapKey key(surface);
    EXPECT_TRUE(key.sections().empty()) << "nothing before the first rebuild";

    key.RebuildKey();

    ASSERT_EQ(key.sections().size(), 1u);
    EXPECT_EQ(key.sections()[0].title, "Map Colour Key");
    ASSERT_EQ(key.sections()[0].entries.size(), 3u);
    EXPECT_EQ(key.sections()[0].entries[2], (MapKey::Entry{" 3 + ", 0x0000FF, true}));
}

TEST(MapKey, SwatchesStandBelowEachOtherInTheirColours) {
    MapSurface surface;
    fillSurface(surface, {"a", "b"});
    MapKey key(surface);
    key.RebuildKey();

    const QImage image = key.picture();
    std::vector<QRgb> seen;
    for (int y = 0; y < image.height(); ++y) {
        const QRgb colour = image.pixel(12, y);
        if ((colour == qRgb(255, 0, 0) || colour == qRgb(0, 255, 0)) && (seen.empty() || seen.back() != colour))
            seen.push_back(colour);
    }
    EXPECT_EQ(seen, (std::vector<QRgb>{qRgb(255, 0, 0), qRgb(0, 255, 0)}));
}

TEST(MapKey, TheLongestNameIsNeverCut) {
    for (double ratio : {1.0, 2.0}) {
        for (const std::string& name : {std::string("£123456789.1234 to £987654321.9876"), std::string("0")}) {
            MapSurface surface;
            fillSurface(surface, {"0", name});
            MapKey key(surface);
            key.RebuildKey();
            const QImage image = key.picture(ratio);
            const QFontMetricsF metrics(labelFont(key.font, ratio));
            EXPECT_GE(image.width(), metrics.horizontalAdvance(QString::fromStdString(name)) + 24 * ratio);
            for (int y = 0; y < image.height(); ++y)
                EXPECT_TRUE(isLight(image, image.width() - 1, y)) << "ink at the right edge, row " << y;
            for (int x = 0; x < image.width(); ++x)
                EXPECT_TRUE(isLight(image, x, image.height() - 1)) << "ink at the lower edge, column " << x;
        }
    }
}

TEST(MapKey, AnEmptyKeyNeedsNoRoom) {
    MapSurface surface;
    surface.layer().LayerShownInKey = false;
    MapKey key(surface);
    key.RebuildKey();
    EXPECT_EQ(key.neededSize(), QSizeF(0, 0));
    EXPECT_FALSE(key.picture().isNull());
}
