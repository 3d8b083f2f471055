#include "map/surface/LayerRows.h"
#include "map/surface/LayerSource.h"

#include <gtest/gtest.h>

TEST(LayerSource, ReadsPathAndPassword) {
    const LayerSource source = LayerSource::parse(
        "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=/data/app/ukmap.mdb;MS Access;pwd=VtDrmkqpwzs;");
    EXPECT_EQ(source.path, "/data/app/ukmap.mdb");
    EXPECT_EQ(source.password, "VtDrmkqpwzs");
}

TEST(LayerSource, ReadsBackEveryPathItWrites) {
    for (const char* path : {"/a b/uk;map.mdb", "C:\\Data\\ukmap.mdb", "/straße/ukmap.mdb", "/x;pwd=y/ukmap.mdb"}) {
        const LayerSource back = LayerSource::parse(LayerSource{path, "secret"}.text());
        EXPECT_EQ(back.path, path);
        EXPECT_EQ(back.password, "secret");
    }
}

TEST(LayerSource, PartsThatAreMissingStayEmpty) {
    EXPECT_EQ(LayerSource::parse("").path, "");
    EXPECT_EQ(LayerSource::parse("Provider=x;data source=a.mdb").path, "a.mdb");
    EXPECT_EQ(LayerSource::parse("Provider=x;data source=a.mdb;").password, "");
}

TEST(Coverages, NameTheirShapeTables) {
    EXPECT_EQ(shapeTableOf("CCL_TV", CoverageKind::Polygons), "PGN_TV");
    EXPECT_EQ(shapeTableOf("ccl_ExchangeArea", CoverageKind::Polygons), "PGN_EXCHANGEAREA");
    EXPECT_EQ(shapeTableOf("CCL_TVNAMES", CoverageKind::LabelPoints), "PNT_TVNAMES");
    EXPECT_EQ(shapeTableOf("CCL_Groups", CoverageKind::Polygons), "PGN_GROUPS");
    EXPECT_EQ(shapeTableOf("CCL_Groups", CoverageKind::LabelPoints), "PNT_GROUPS");
    EXPECT_EQ(shapeTableOf("PGN_TEMP", CoverageKind::Polygons), "PGN_TEMP");
}

TEST(Coverages, AreResolvedInStatementsButNotInQuotes) {
    EXPECT_EQ(resolveCoverages("ccl_tv.Name = 'CCL_TV' AND XCCL_TV = CCL_CSG.Name", CoverageKind::Polygons),
              "PGN_TV.Name = 'CCL_TV' AND XCCL_TV = PGN_CSG.Name");
}

struct QueryRow {
    std::string name;
    Layer layer;
    std::string sql;
    int valueColumn;
    int labelColumn;
};

Layer layerOf(CoverageKind kind, const char* coverage, const char* joins, const char* fields, const char* value,
              const char* label) {
    Layer layer;
    layer.LayerInterpretation = kind;
    layer.LayerCoverageName = coverage;
    layer.LayerJoins = joins;
    layer.LayerFields = fields;
    layer.LayerSymbolExpression = value;
    layer.LayerLabelSource = label;
    return layer;
}

class LayerQueryText : public testing::TestWithParam<QueryRow> {};

TEST_P(LayerQueryText, ReadsAttributesWithoutShapes) {
    const LayerQuery query = LayerQuery::of(GetParam().layer);
    EXPECT_EQ(query.sql, GetParam().sql);
    EXPECT_EQ(query.valueColumn, GetParam().valueColumn);
    EXPECT_EQ(query.labelColumn, GetParam().labelColumn);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, LayerQueryText,
    testing::Values(
        QueryRow{"LeftJoin",
                 layerOf(CoverageKind::Polygons, "CCL_TV",
                         "PGN_TV LEFT JOIN TblTV ON Left(PGN_TV.NAME, 50) = TblTV.TVRegion",
                         "PGN_TV.NAME, TblTV.TVRegion", "TblTV.TotalCalls1", "PGN_TV.NAME"),
                 "SELECT PGN_TV.POLYGONID, TblTV.TotalCalls1, PGN_TV.NAME, PGN_TV.NAME, TblTV.TVRegion FROM PGN_TV "
                 "LEFT JOIN TblTV ON Left(PGN_TV.NAME, 50) = TblTV.TVRegion",
                 1, 2},
        QueryRow{"CommaJoinWithCondition",
                 layerOf(CoverageKind::Polygons, "CCL_CSG", "PGN_CSG,TblCSG WHERE PGN_CSG.NAME = TblCSG.CSG", "", "",
                         "PGN_CSG.NAME"),
                 "SELECT PGN_CSG.POLYGONID, PGN_CSG.NAME FROM PGN_CSG,TblCSG WHERE PGN_CSG.NAME = TblCSG.CSG", -1, 1},
        QueryRow{
            "ConditionAlone",
            layerOf(CoverageKind::Polygons, "CCL_TV", "PGN_TV WHERE PGN_TV.Name =  'Republic Of Ireland'", "", "", ""),
            "SELECT PGN_TV.POLYGONID FROM PGN_TV WHERE PGN_TV.Name =  'Republic Of Ireland'", -1, -1},
        QueryRow{"PlainPoints", layerOf(CoverageKind::LabelPoints, "CCL_TVNAMES", "", "", "", "PNT_TVNAMES.NAME"),
                 "SELECT PNT_TVNAMES.PointID, PNT_TVNAMES.NAME FROM PNT_TVNAMES ", -1, 1},
        QueryRow{"JoinBehindTheTable",
                 layerOf(CoverageKind::Polygons, "CCL_TV", "LEFT JOIN TblTV ON CCL_TV.NAME = TblTV.TVRegion", "",
                         "TblTV.Cost1", ""),
                 "SELECT PGN_TV.POLYGONID, TblTV.Cost1 FROM PGN_TV LEFT JOIN TblTV ON PGN_TV.NAME = TblTV.TVRegion", 1,
                 -1}),
    [](const auto& row) { return row.param.name; });
