#include "map/ReportPicture.h"

#include "tests/map/MapOnFile.h"

#include <gtest/gtest.h>

namespace {

class ReportPictureOnFile : public testing::Test, protected MapOnFile {
protected:
    ReportPictureOnFile() {
        tables.TV = "TblTV";
        thematic.CreateMap(2, 1, 1);
    }

    int pixelsOf(const QImage& picture, QColor colour, const QRect& area) const {
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x)
                count += picture.pixelColor(x, y) == colour;
        }
        return count;
    }
};

} // namespace

TEST_F(ReportPictureOnFile, ShowsTheWholeMapBesideThePanel) {
    const QSize size(1400, 1000);
    const QImage picture =
        drawReportPicture(surface, key, form, {"TV Regions · Total Calls", "Sample", "", true}, size);

    ASSERT_EQ(picture.size(), size);
    const int panel = size.width() - reportMapSize(size).width();
    const QColor west = QColor::fromRgb(0xFF2D1D);
    EXPECT_GT(pixelsOf(picture, west, QRect(panel, 0, size.width() - panel, size.height())), 10000);
    EXPECT_GT(pixelsOf(picture, west, QRect(0, 0, panel, size.height())), 100) << "its swatch in the key";
    EXPECT_EQ(picture.pixelColor(size.width() - 3, 3), surface.style.sea);
}

TEST_F(ReportPictureOnFile, APreparedMapIsDrawnOnce) {
    const QSize size(700, 500);
    int draws = 0;
    surface.DrawMapFinished = [&] { ++draws; };
    form.extentCaptured = false;
    prepareReportMap(surface, size);
    thematic.CreateMap(2, 1, 1);
    const ReportCaption caption{"TV Regions", "", "", true};
    const QImage picture = drawReportPicture(surface, key, form, caption, size);
    EXPECT_EQ(draws, 1);

    surface.setMapScale(40);
    surface.DrawMap();
    draws = 0;
    EXPECT_EQ(drawReportPicture(surface, key, form, caption, size), picture) << "another view is drawn whole again";
    EXPECT_EQ(draws, 1);
    drawReportPicture(surface, key, form, caption, size * 2);
    EXPECT_EQ(draws, 2) << "and another size";
}

TEST_F(ReportPictureOnFile, TheWholeKeyIsInThePictureWhereverThatIsPossible) {
    for (Symbol& symbol : surface.layer().symbols)
        symbol.SymbolName = "£123456789.1234 to £987654321.9876";
    surface.setLayerIndex(0);
    for (Symbol& symbol : surface.layer().symbols)
        symbol.SymbolName = "£123456789.1234 to £987654321.9876";
    surface.symbol().SymbolPolygonColor = 0xFF00FF;
    surface.layer().symbols.back().SymbolPolygonColor = 0x00FF00;
    key.RebuildKey();
    for (const QSize& size : {QSize(1400, 1000), QSize(700, 400), QSize(400, 300), QSize(2800, 2000)}) {
        const QImage picture = drawReportPicture(surface, key, form, {"T", "", "", true}, size);
        const int panel = size.width() - reportMapSize(size).width();
        const QRect area(0, 0, panel, size.height());
        EXPECT_GT(pixelsOf(picture, QColor(255, 0, 255), area), 10) << size.width();
        EXPECT_GT(pixelsOf(picture, QColor(0, 255, 0), area), 10) << size.width();
    }
}

TEST_F(ReportPictureOnFile, AnySizeCanBeAskedFor) {
    const ReportCaption caption{"TV Regions · Total Calls", std::string(500, 'W'), std::string(5000, 'x'), true};
    for (const QSize& size : {QSize(1, 1), QSize(80, 40), QSize(300, 2000), QSize(2800, 2000)})
        EXPECT_EQ(drawReportPicture(surface, key, form, caption, size).size(), size.expandedTo(QSize(2, 2)));
}
