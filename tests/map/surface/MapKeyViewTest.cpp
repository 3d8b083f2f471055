#include "map/surface/windows/MapKeyView.h"

#include "map/surface/MapKey.h"
#include "map/surface/MapSurface.h"

#include <gtest/gtest.h>

#include <QScrollBar>

namespace {

struct KeyOnSurface {
    MapSurface surface;
    MapKey key{surface};

    void list(int bands, const std::string& last) {
        surface.layer().LayerName = "Map Colour Key";
        surface.layer().symbols.resize(static_cast<std::size_t>(bands));
        for (int i = 0; i < bands; ++i) {
            surface.layer().symbols[static_cast<std::size_t>(i)].SymbolName = std::to_string(i);
            surface.layer().symbols[static_cast<std::size_t>(i)].SymbolPolygonColor = 0x0000FF;
        }
        surface.layer().symbols.back().SymbolName = last;
        key.RebuildKey();
    }
};

int pixelsOf(const QImage& image, QRgb colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == colour;
    }
    return count;
}

} // namespace

TEST(MapKeyView, IsAsLargeAsItsKeyAndFollowsIt) {
    KeyOnSurface on;
    MapKeyView view(on.key);
    const QSize empty = view.sizeHint();
    EXPECT_FALSE(empty.isEmpty());

    on.list(11, "72000 + ");
    EXPECT_GT(view.sizeHint().height(), empty.height());
    EXPECT_GE(view.sizeHint().width(), on.key.neededSize().width());
    view.resize(view.sizeHint());
    EXPECT_GT(pixelsOf(view.grab().toImage(), qRgb(255, 0, 0)), 11 * 200);

    on.list(2, "£123456789.1234 to £987654321.9876");
    EXPECT_GE(view.sizeHint().width(), on.key.neededSize().width());
}

TEST(MapKeyView, ScrollsWhereTheWindowIsSmall) {
    KeyOnSurface on;
    on.list(11, "£123456789.1234 to £987654321.9876");
    MapKeyView view(on.key);
    view.resize(120, 100);
    view.show();
    view.grab();
    EXPECT_GT(view.verticalScrollBar()->maximum(), 0);
    EXPECT_GT(view.horizontalScrollBar()->maximum(), 0);
    view.resize(view.sizeHint());
    view.grab();
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
}

TEST(MapKeyView, TellsItsBandsToReadersOfTheScreen) {
    KeyOnSurface on;
    MapKeyView view(on.key);
    EXPECT_EQ(view.accessibleDescription(), "No map has been drawn yet");
    on.list(3, " 7 + ");
    EXPECT_EQ(view.accessibleName(), "Map Colour Key");
    EXPECT_EQ(view.accessibleDescription(), "Map Colour Key, 0, 1, 7 +");
}

TEST(MapKeyView, AKeyOutlivesItsView) {
    KeyOnSurface on;
    { MapKeyView view(on.key); }
    on.list(3, "x");
    EXPECT_EQ(on.key.sections().size(), 1u);
}
