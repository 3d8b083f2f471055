#include "map/data/DataStatement.h"
#include "data/engine/Database.h"
#include "data/schema/Vocabulary.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

struct ViewCase {
    DataView view;
    const char* columns; ///< of the rows, joined by "|"
};

TEST(DataStatement, ShowsTheFiguresOfEveryBoundaryUnderTheirCaptions) {
    const TemporaryFolder folder;
    const auto workspace = Workspace::create();
    const auto database = workspace->createDatabase(folder.file("ukmap.mdb"));
    const std::string counts =
        "|TotalCalls|Answered|Ineffective|Cost(£)|Revenue(£)|Engaged|RTNR|Other|LostCallers|AnsweredCallers";
    const std::string shares = "|Area Cost Per Answered Call|Area Cost Per Answered Caller";
    const ViewCase cases[] = {
        {{0, "TblExchangeArea", 1, true, true}, "Exchange"},
        {{1, "TblSelectedDataForCSG", 1, true, false}, "CSG"},
        {{2, "TblTV", 1, false, true}, "TVRegion"},
        {{2, "TblSelectedDataForTV", 3, true, true}, "TVRegion"},
        {{2, "TblAnimatedTV1", 5, true, false}, "TVRegion"},
        {{3, "TblPostCodeDistrict", 1, true, true}, "PostCodeDistrict"},
        {{3, "tblPostCodeByPopulation", 1, false, true}, "PostCodeDistrict"},
    };
    for (const char* table : {"tblTVPopulationDensity", "tblPostCodePopulationDensity"})
        createVocabularyTable(*database, DatabaseKind::SystemMap, table);
    for (const ViewCase& test : cases) {
        SCOPED_TRACE(test.view.table);
        createVocabularyTable(*database, DatabaseKind::SystemMap, test.view.table);
        std::string expected = test.columns + counts;
        if (test.view.hasCostColumns && test.view.table.find("Animate") == std::string::npos)
            expected += shares;
        if (test.view.hasPopulation && test.view.boundary >= 2)
            expected += "|Population";
        const auto rows = database->openRecordset(dataStatement(test.view));
        std::string found;
        for (int i = 0; i < rows->fieldCount(); ++i)
            found += (i == 0 ? "" : "|") + rows->field(i).name;
        EXPECT_EQ(found, expected);
    }
    EXPECT_EQ(dataStatement({4, "TblTV", 1, true, true}), "");
}

TEST(DataStatement, WritesMoneyAsTextAndOrdersCSGsAsNumbers) {
    const TemporaryFolder folder;
    const auto database = Workspace::create()->createDatabase(folder.file("ukmap.mdb"));
    createVocabularyTable(*database, DatabaseKind::SystemMap, "TblCSG");
    database->execute("INSERT INTO TblCSG (CSG, TotalCalls1, Cost1, Revenue1) VALUES ('1224', 2, 1234.5, 0)");
    database->execute("INSERT INTO TblCSG (CSG, TotalCalls1, Cost1, Revenue1) VALUES ('20', 3, 0.125, 0.005)");
    const auto rows = database->openRecordset(dataStatement({1, "TblCSG", 1, false, false}));
    EXPECT_EQ(rows->value(0).asText(), "20");
    rows->MoveNext();
    EXPECT_EQ(rows->value("Cost(£)").asText(), "£1234.50");
    EXPECT_EQ(rows->value("TotalCalls"), Value(2));
}

} // namespace
