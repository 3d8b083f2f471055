// Every boundary on a small file: a known point of the map has the colour of its band.
#include "core/ModDeclarations.h"
#include "tests/map/MapOnFile.h"

#include <gtest/gtest.h>

namespace {

const std::string LongName = "The Isles Of A Name That Is Longer Than Fifty Characters";

struct BoundaryRow {
    long code;
    const char *shapes, *points, *figures, *key, *joins, *labelSource;
    bool showsMinimum;
};

class EachBoundary : public testing::TestWithParam<BoundaryRow>, protected MapOnFile {
protected:
    /// Areas of 100 units side by side from (0, 1000).
    void SetUp() override {
        const BoundaryRow& row = GetParam();
        for (const char* name : {row.shapes, row.points, row.figures}) {
            if (!map.database().tableDefs().find(name))
                createVocabularyTable(map.database(), DatabaseKind::SystemMap, name);
            map.database().execute("DELETE FROM " + std::string(name));
        }
        map.database().execute("ALTER TABLE " + std::string(row.shapes) + " ALTER COLUMN NAME Text(80)");
        addPolygon(map.database(), row.shapes, 1, "Busy", {{squareRing(0, 1000, 100)}});
        addPolygon(map.database(), row.shapes, 2, LongName, {{squareRing(100, 1000, 100)}});
        addPolygon(map.database(), row.shapes, 3, "Unknown", {{squareRing(200, 1000, 100)}});
        addLabelPoint(map.database(), row.points, 1, "Busy", 50, 1080);
        addFigure(map.database(), row.figures, row.key, "Busy", "TotalCalls1", 900);
        addFigure(map.database(), row.figures, row.key, LongName.substr(0, 50), "TotalCalls1", 130);
        *tables.of(row.code) = row.figures;
    }
};

/// Customer groups made of areas of one kind: "One" is the first area, the second belongs to none.
class EachGeography : public testing::TestWithParam<std::pair<const char*, BoundaryRow>>, protected MapOnFile {};

const BoundaryRow Exchanges{0,
                            "PGN_EXCHANGEAREA",
                            "PNT_ExchangeAreaNAMES",
                            "TblExchangeArea",
                            "Exchange",
                            "PGN_EXCHANGEAREA LEFT JOIN TblExchangeArea ON Left(PGN_EXCHANGEAREA.NAME, 50) = "
                            "TblExchangeArea.Exchange",
                            "PNT_ExchangeAreaNAMES.NAME",
                            true};
const BoundaryRow Csgs{1,
                       "PGN_CSG",
                       "PNT_CSGNAMES",
                       "TblCSG",
                       "CSG",
                       "PGN_CSG LEFT JOIN TblCSG ON Left(PGN_CSG.NAME, 50) = TblCSG.CSG",
                       "PNT_CSGNAMES.NAME",
                       false};
const BoundaryRow Regions{2,
                          "PGN_TV",
                          "PNT_TVNAMES",
                          "TblTV",
                          "TVRegion",
                          "PGN_TV LEFT JOIN TblTV ON Left(PGN_TV.NAME, 50) = TblTV.TVRegion",
                          "PNT_TVNAMES.NAME",
                          true};
const BoundaryRow Districts{3,
                            "PGN_POSTCODEDISTRICT",
                            "PNT_PostCodeDistrictNAMES",
                            "TblPostCodeDistrict",
                            "PostCodeDistrict",
                            "PGN_POSTCODEDISTRICT LEFT JOIN TblPostCodeDistrict ON Left(PGN_POSTCODEDISTRICT.NAME, "
                            "50) = TblPostCodeDistrict.PostCodeDistrict",
                            "PNT_PostCodeDistrictNAMES.NAME",
                            true};

} // namespace

TEST_P(EachBoundary, ShowsItsFiguresInTheColoursOfTheirBands) {
    const BoundaryRow& row = GetParam();
    form.LblStatusValue[6] = "before";
    EXPECT_TRUE(thematic.CreateMap(row.code, 1, 1));

    EXPECT_EQ(colourAt(surface, 20, 1020), bandColour(9)) << "840 to 959";
    EXPECT_EQ(colourAt(surface, 120, 1020), bandColour(3)) << "120 to 239, by its first fifty characters";
    EXPECT_EQ(colourAt(surface, 220, 1020), bandColour(0)) << "no figures";
    EXPECT_EQ(surface.scene().layers[0].LayerJoins, row.joins);
    EXPECT_EQ(surface.scene().layers[1].LayerLabelSource, row.labelSource);
    EXPECT_EQ(surface.scene().layers[1].LayerVisible, row.code == 2);
    EXPECT_EQ(form.LblStatusValue[4], "Busy");
    EXPECT_EQ(form.LblStatusValue[5], "900");
    EXPECT_EQ(form.LblStatusValue[6], row.showsMinimum ? LongName.substr(0, 50) : "before");
    EXPECT_EQ(map.installation.logLines(), std::vector<std::string>{});

    form.labelFlag = true;
    thematic.CreateMap(row.code, 1, 1);
    EXPECT_TRUE(surface.scene().layers[1].LayerVisible);
    EXPECT_EQ(map.installation.logLines(), std::vector<std::string>{}) << "the label points are there";
}

INSTANTIATE_TEST_SUITE_P(Boundaries, EachBoundary, testing::Values(Exchanges, Csgs, Regions, Districts),
                         [](const auto& row) { return std::string(row.param.figures); });

TEST_P(EachGeography, CustomerGroupsLieBesideWhiteLandAndIreland) {
    const auto& [dataType, row] = GetParam();
    addGroupTables(dataType);
    for (const char* name : {row.shapes, row.figures}) {
        if (!map.database().tableDefs().find(name))
            createVocabularyTable(map.database(), DatabaseKind::SystemMap, name);
        map.database().execute("DELETE FROM " + std::string(name));
    }
    map.database().execute("INSERT INTO TblGroup_Link VALUES ('ACC', 'Grouped', 'One')");
    map.database().execute("INSERT INTO TblGroup_Link VALUES ('ACC', 'Free', '')");
    map.database().execute("INSERT INTO TblGroup_Link VALUES ('OTHER', 'Foreign', '')");
    int id = 0;
    for (const char* name : {"Grouped", "Free", "Foreign", "Republic Of Ireland"}) {
        ++id;
        addPolygon(map.database(), row.shapes, id, name, {{squareRing(100.0 * id, 0, 100)}});
        addFigure(map.database(), row.figures, row.key, name, "TotalCalls1", 5);
    }
    addPolygon(map.database(), "PGN_GROUPS", 1, "One", {{squareRing(100, 0, 100)}}, "GROUPNAME");
    addFigure(map.database(), "TblCustomerGroups", "GroupName", "One", "TotalCalls1", 900);
    *tables.of(row.code) = "TblOther";

    EXPECT_TRUE(thematic.CreateMap(5, 1, 1));
    surface.CentreMapOn(300, 50);
    surface.setMapScale(600);
    surface.DrawMap();

    EXPECT_EQ(form.groupBaseGeography, row.code);
    EXPECT_EQ(*tables.of(row.code), row.figures);
    EXPECT_EQ(colourAt(surface, 150, 50), bandColour(9));
    EXPECT_EQ(colourAt(surface, 250, 50), QColor(Qt::white)) << "in no group";
    EXPECT_EQ(colourAt(surface, 350, 50), surface.style.sea) << "of another account";
    EXPECT_EQ(colourAt(surface, 450, 50), QColor(Qt::white)) << "Ireland";
    EXPECT_EQ(surface.NumberOfLayers(), 4);
    EXPECT_EQ(key.sections().size(), 1u);
    EXPECT_EQ(map.installation.logLines(), std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(Geographies, EachGeography,
                         testing::Values(std::pair("1", Csgs), std::pair("2", Regions), std::pair("3", Districts),
                                         std::pair("7", Regions), std::pair("", Districts)),
                         [](const auto& row) {
                             const std::string type = row.param.first;
                             return (type.empty() ? std::string("Unsaid") : "Type" + type) + row.param.second.figures;
                         });
