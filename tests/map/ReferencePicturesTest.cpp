// Small maps beside pictures of them that a person has looked at. Without letters: fonts differ between machines.
// CALLSCOPE_NEW_PICTURES=1 writes the pictures anew; look at them before keeping them.
#include "core/ModDeclarations.h"
#include "tests/map/MapOnFile.h"

#include <gtest/gtest.h>

namespace {

/// Colour steps that smoothing may differ by, and the share of pixels that may differ by more.
constexpr int Tolerance = 24;
constexpr double MostDifferent = 0.01;

bool isNear(QRgb a, QRgb b) {
    return std::abs(qRed(a) - qRed(b)) <= Tolerance && std::abs(qGreen(a) - qGreen(b)) <= Tolerance &&
           std::abs(qBlue(a) - qBlue(b)) <= Tolerance;
}

void expectPicture(const QImage& picture, const std::string& name) {
    const QString path = QString::fromStdString(std::string(CALLSCOPE_PICTURES) + "/" + name + ".png");
    if (qEnvironmentVariableIsSet("CALLSCOPE_NEW_PICTURES")) {
        ASSERT_TRUE(picture.save(path));
    }
    const QImage wanted(path);
    ASSERT_EQ(picture.size(), wanted.size()) << path.toStdString();
    int different = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            different += !isNear(picture.pixel(x, y), wanted.pixel(x, y));
    }
    EXPECT_LE(different, MostDifferent * picture.width() * picture.height()) << name;
}

class ReferencePictures : public testing::Test, protected MapOnFile {
protected:
    ReferencePictures() {
        surface.setPixelSize({240, 120});
        tables.TV = "TblTV";
        addPolygon(map.database(), "PGN_TV", 20, "Crown",
                   {{{{0, 110}, {300, 110}, {260, 170}, {200, 130}, {150, 190}, {100, 130}, {40, 170}, {0, 110}},
                     squareRing(310, 150, 20)}});
        addFigure(map.database(), "TblTV", "TVRegion", "Crown", "TotalCalls1", 130);
    }
    void drawWithoutLabels() {
        surface.setLayerIndex(surface.NumberOfLayers() - 1);
        surface.layer().LayerVisible = false;
        surface.DrawMap();
    }
};

} // namespace

TEST_F(ReferencePictures, RegionsInTheColoursOfTheirBands) {
    thematic.CreateMap(2, 1, 1);
    drawWithoutLabels();
    expectPicture(surface.picture(), "regions");
}

TEST_F(ReferencePictures, GroupsOverWhiteLand) {
    addGroupTables("2");
    for (const char* region : {"Middle", "Crown"})
        map.database().execute("INSERT INTO TblGroup_Link VALUES ('ACC', '" + std::string(region) + "', Null)");
    addPolygon(map.database(), "PGN_TV", 14, "Republic Of Ireland", {{squareRing(-120, 20, 100)}});
    addPolygon(map.database(), "PGN_GROUPS", 1, "Both", {{squareRing(0, 0, 100), squareRing(200, 0, 100)}},
               "GROUPNAME");
    addFigure(map.database(), "TblCustomerGroups", "GroupName", "Both", "TotalCalls1", 500);
    thematic.CreateMap(5, 1, 1);
    surface.CentreMapOn(100, 90);
    surface.setMapScale(480);
    drawWithoutLabels();
    expectPicture(surface.picture(), "groups");
}

TEST_F(ReferencePictures, ACloseViewAtTheEdgeOfTheCountry) {
    thematic.CreateMap(2, 1, 1);
    surface.CentreMapOn(290, 105);
    surface.setMapScale(90);
    drawWithoutLabels();
    expectPicture(surface.picture(), "edge");
}
