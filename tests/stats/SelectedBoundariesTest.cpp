#include "tests/stats/BoundaryProject.h"

#include <gtest/gtest.h>

namespace {

struct Boundary {
    void (*procedure)(const std::string& tableName, int period);
    const char* name;
    const char* mainTable;
    const char* selectedTable;
    const char* key;
};

constexpr Boundary csg{&ModData_SelectedCSGData, "ModData_SelectedCSGData", "TblCSG", "TblSelectedDataForCSG", "CSG"};
constexpr Boundary exchange{&ModData_SelectedExchangeData, "ModData_SelectedExchangeData", "TblExchangeArea",
                            "TblSelectedDataForExchangeArea", "Exchange"};
constexpr Boundary district{&ModData_SelectedPostCodeData, "ModData_SelectedPostCodeData", "TblPostCodeDistrict",
                            "TblSelectedDataForPostCodeDistrict", "PostCodeDistrict"};
constexpr Boundary region{&ModData_SelectedTVArea, "ModData_SelectedTVArea", "TblTV", "TblSelectedDataForTV",
                          "TVRegion"};
constexpr Boundary boundaries[] = {csg, exchange, district, region};

Rows mainFigures(const Boundary& boundary) {
    boundary.procedure(boundary.mainTable, 1);
    return figuresOf(boundary.mainTable, boundary.key);
}

/// Figures of the areas that lie in no place, as all boundaries have them but where told.
const std::string ireland = "Republic Of Ireland|0|0|0|0|0|0|0|0|0|0";
const std::string international = "International|2|1|1|3|0|0|0|1|0|1";
const std::string mobile = "Mobile|1|1|0|0.3|0|0|0|0|0|1";
const std::string voip = "VOIP|1|0|1|0|0|1|0|0|1|0";

TEST(SelectedBoundaries, TheWholeProjectByCsg) {
    BoundaryProject project;
    project.addAllCalls();
    gdbSystem->execute("INSERT INTO TblCSG (CSG, TotalCalls1) VALUES ('Left from before', 7)");
    // The calls of OLO are not counted, but their money is: of two sums of theirs the last stays, of all others the
    // first. Their callers count.
    EXPECT_EQ(mainFigures(csg),
              (Rows{"113|3|1|2|2|0.4|1|1|0|1|1", "114|2|1|1|0.1|1.25|1|0|0|0|1", "115|0|0|0|0|0|0|0|0|0|0",
                    international, mobile, "Other|1|0|1|0.07|0|0|1|0|1|1", ireland, voip}));
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST(SelectedBoundaries, TheWholeProjectByExchange) {
    BoundaryProject project;
    project.addAllCalls();
    // The row that the map knows as Birmingham's is made, the calls find the exchange under its own name.
    EXPECT_EQ(mainFigures(exchange),
              (Rows{"BIRMINGHAM NORTHERN|0|0|0|0|0|0|0|0|0|0", international, "LEEDS|3|1|2|2|0.4|1|1|0|1|1", mobile,
                    "NORTHERN|2|1|1|0.1|1.25|1|0|0|0|1", "Other|3|1|2|0.05|0|1|1|0|1|1", ireland, voip}));
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST(SelectedBoundaries, TheWholeProjectByPostcodeDistrict) {
    BoundaryProject project;
    project.addAllCalls();
    EXPECT_EQ(mainFigures(district),
              (Rows{international, "LS1|3|1|2|2|0.4|1|1|0|1|1", "LS9|0|0|0|0|0|0|0|0|0|0", mobile,
                    "Other|3|1|2|0.05|0|1|1|0|1|1", ireland, "S1|2|1|1|0.1|1.25|1|0|0|0|1", voip}));
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST(SelectedBoundaries, WithoutCallsEveryBoundaryStillHasItsSidePanels) {
    const std::string zeros = "|0|0|0|0|0|0|0|0|0|0";
    const std::string nulls = "|null|null|null|null|null|null|null|null|null|null";
    const Rows expected[] = {
        // CSGs add no row for mobile callers.
        {"113" + zeros, "114" + zeros, "115" + zeros, "International" + zeros, "Other" + nulls, ireland,
         "VOIP" + zeros},
        {"International" + zeros, "MOBILE" + zeros, "Other" + zeros, ireland, "VOIP" + zeros},
        {"International" + zeros, "LS1" + zeros, "LS9" + zeros, "MOBILE" + zeros, "Other" + nulls, ireland,
         "VOIP" + zeros},
        {"International" + zeros, "MOBILE" + zeros, "Other" + zeros, ireland},
    };
    for (std::size_t i = 0; i < std::size(boundaries); ++i) {
        const BoundaryProject project;
        gdbProject->execute("DELETE FROM TblMappingGIS");
        EXPECT_EQ(mainFigures(boundaries[i]), expected[i]) << boundaries[i].name;
        EXPECT_EQ(project.logLines(), Rows{}) << boundaries[i].name;
    }
}

TEST(SelectedBoundaries, ASelectionCountsItsCallsAndRepairsTheSidePanelsOfSomeBoundaries) {
    const std::string oneDay = " CallDate = #1/1/2025#";
    const std::string repairedVoip = "VOIP|1|0|1|0|0|1|0|0|1|0";
    const Rows expected[] = {
        // Repaired: every call of OLO, whole sums, callers of mobile and VOIP alone.
        {"113|2|1|1|2|0|1|0|0|0|1", "114|1|0|1|0|1.25|1|0|0|0|0", "115|0|0|0|0|0|0|0|0|0|0",
         "International|2|1|1|3|0|0|0|1|0|0", mobile, "Other|3|1|2|0.12|0|1|1|0|0|0", ireland, repairedVoip},
        // Folded only.
        {"BIRMINGHAM NORTHERN|0|0|0|0|0|0|0|0|0|0", international, "LEEDS|2|1|1|2|0|1|0|0|0|1", mobile,
         "NORTHERN|1|0|1|0|1.25|1|0|0|0|0", "Other|3|1|2|0.05|0|1|1|0|1|1", ireland, voip},
        // In the first period folded only.
        {international, "LS1|2|1|1|2|0|1|0|0|0|1", "LS9|0|0|0|0|0|0|0|0|0|0", mobile, "Other|3|1|2|0.05|0|1|1|0|1|1",
         ireland, "S1|1|0|1|0|1.25|1|0|0|0|0", voip},
    };
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        BoundaryProject project;
        project.addAllCalls();
        SelectionSql = oneDay;
        boundaries[i].procedure(boundaries[i].selectedTable, 1);
        EXPECT_EQ(figuresOf(boundaries[i].selectedTable, boundaries[i].key), expected[i]) << boundaries[i].name;
        EXPECT_EQ(project.logLines(), Rows{}) << boundaries[i].name;
    }
}

TEST(SelectedBoundaries, ALaterPeriodOfExchangesIsMadeAnewWithoutSomeSidePanels) {
    BoundaryProject project;
    project.addAllCalls();
    SelectionSql = " CallDate >= #1/1/2025#";
    ModData_SelectedExchangeData("TblSelectedDataForExchangeArea", 1);
    ModData_SelectedExchangeData("TblSelectedDataForExchangeArea", 3);
    EXPECT_EQ(
        rowsOf(*gdbSystem, "SELECT Exchange, TotalCalls3, Cost3, AnsweredCallers3, TotalCalls1 FROM "
                           "TblSelectedDataForExchangeArea ORDER BY Exchange"),
        (Rows{".France|2|3|0|0", "BIRMINGHAM NORTHERN|0|0|0|0", "LEEDS|3|2|0|0", "NO CLI|1|0|0|0", "NORTHERN|2|0.1|0|0",
              "OLO|2|0.05|0|0", "Republic Of Ireland|0|0|0|0", "UNTRACEAB|0|0|0|0", "VOIP|1|0|0|0"}));
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST(SelectedBoundaries, CallersOfDistrictsStandInThePeriodOneColumnsOfTheFirstRange) {
    BoundaryProject project;
    project.addAllCalls();
    const auto callers = [] {
        return rowsOf(*gdbSystem, "SELECT PostCodeDistrict, LostCallers1, AnsweredCallers1, LostCallers2, "
                                  "AnsweredCallers2, AnsweredCallers3 FROM TblSelectedDataForPostCodeDistrict WHERE "
                                  "PostCodeDistrict IN ('LS1', 'S1') ORDER BY PostCodeDistrict");
    };
    ModData_SelectedPostCodeData("TblSelectedDataForPostCodeDistrict", 1);
    EXPECT_EQ(callers(), (Rows{"LS1|1|1|0|0|0", "S1|0|1|0|0|0"}));
    SelectionSql = " CallDate = #1/2/2025#";
    ModData_SelectedPostCodeData("TblSelectedDataForPostCodeDistrict", 2);
    EXPECT_EQ(callers(), (Rows{"LS1|1|0|0|0|0", "S1|0|1|0|0|0"})) << "of the second of January";
    SelectionSql = " CallDate = #1/1/2025#";
    ModData_SelectedPostCodeData("TblSelectedDataForPostCodeDistrict", 3);
    EXPECT_EQ(callers(), (Rows{"LS1|1|0|0|0|0", "S1|0|1|0|0|0"})) << "later ranges have no callers";
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT PostCodeDistrict, TotalCalls1, TotalCalls2, TotalCalls3, Cost3 FROM "
                                 "TblSelectedDataForPostCodeDistrict WHERE PostCodeDistrict IN ('LS1', 'Other', "
                                 "'International') ORDER BY PostCodeDistrict"),
              (Rows{"International|0|0|2|3", "LS1|3|1|2|2", "Other|0|0|3|0.12"}))
        << "the side panels are made anew by the first range and repaired by all";
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST(SelectedBoundaries, FramesOfDistrictsStandBesideEachOther) {
    BoundaryProject project;
    project.addAllCalls();
    for (const int frame : {1, 2}) {
        SelectionSql = " CallDate = #1/" + std::to_string(frame) + "/2025#";
        ModData_SelectedPostCodeData("TblAnimatedPostCodeDistrict1", frame);
    }
    EXPECT_EQ(rowsOf(*gdbSystem, "SELECT PostCodeDistrict, TotalCalls1, TotalCalls2, AnsweredCallers1, "
                                 "AnsweredCallers2 FROM TblAnimatedPostCodeDistrict1 WHERE PostCodeDistrict IN "
                                 "('LS1', 'S1', 'LS9', 'Mobile') ORDER BY PostCodeDistrict"),
              (Rows{"LS1|2|1|1|0", "LS9|0|0|0|0", "Mobile|1|0|1|0", "S1|1|1|0|0"}));
    EXPECT_EQ(project.logLines(), Rows{});
}

TEST(SelectedBoundaries, KeptRowsOfDistrictsAreZeroedAndAlwaysMadeAnewForTheOthers) {
    BoundaryProject project;
    for (const Boundary& boundary : {csg, exchange, district}) {
        gdbSystem->execute(std::string("INSERT INTO ") + boundary.selectedTable + " (" + boundary.key +
                           ", TotalCalls1) VALUES ('Closed', 5)");
        boundary.procedure(boundary.selectedTable, 1);
        EXPECT_EQ(valueOf(*gdbSystem, std::string("SELECT TotalCalls1 FROM ") + boundary.selectedTable + " WHERE " +
                                          boundary.key + " = 'Closed'"),
                  boundary.procedure == district.procedure ? "0" : "no row")
            << boundary.name;
    }
}

TEST(SelectedBoundaries, TellWhatTheyAreDoing) {
    const Rows expected[] = {
        {"Updating CSG Statistics...", "Updating CSG Mapping Information...", "Updating Calls By CSG Statistics...",
         "Updating Total Cost By CSG Statistics...", "Updating Total Revenue By CSG Statistics...",
         "Calculating Lost Caller Statistics...", "Calculating Answered Caller Statistics...",
         "Calculating 'Other', 'Mobile', and 'International' Statistics..."},
        {"Updating Exchange Data...", "Updating Calls By Exchange Statistics...",
         "Updating Total Cost By Exchange Statistics...", "Updating Total Revenue By Exchange Statistics...",
         "Updating Exchange Answered Caller Statistics...",
         "Updating 'Other', 'International' and 'Mobile' Statistics for Exchanges..."},
        {"Refreshing Post Code Statistics...", "Updating Post Code Data...",
         "Updating Calls By Post Code Statistics...", "Updating Total Cost By Post Code Statistics...",
         "Updating Total Revenue By Post Code Statistics...", "Updating Answered Caller Statistics...",
         "Updating 'Other', 'Mobile', 'International' Statistics..."},
    };
    const BoundaryProject project;
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        TaskTexts shown;
        boundaries[i].procedure(boundaries[i].mainTable, 1);
        EXPECT_EQ(shown.texts, expected[i]);
    }
}

TEST(SelectedBoundaries, NamesThatCannotBeReconciledAreToldAndTheRunEnds) {
    BoundaryProject project;
    project.addAllCalls();
    gdbSystem->execute("DROP TABLE TblLookup1141");
    for (const Boundary& boundary : boundaries) {
        const Rows rows = mainFigures(boundary);
        EXPECT_EQ(std::count(rows.begin(), rows.end(), ireland), 1) << boundary.name;
        boundary.procedure(boundary.selectedTable, 1);
    }
    EXPECT_EQ(project.prompts.texts, (Rows{"Could not update Exchange Names", "Could not update PostCode region names",
                                           "Could not update PostCode region names"}))
        << "exchanges only with the whole project, districts with every run, regions in the log alone";
    EXPECT_EQ(project.logLinesWith("\"ModData_CheckTVNameChanges\""), 2);
}

TEST(SelectedBoundaries, DamagedProjectsAreLoggedAndGiveWhatCanBeHad) {
    struct Damage {
        const char* name;
        Rows statements;
        const char* callsInLeeds; ///< of the area of code 0113, or "no row"
    };
    const Damage damages[] = {
        {"no geography", {"DROP TABLE TblMappingGIS"}, "no row"},
        {"no calls", {"DROP TABLE TblTeleItem"}, "0"},
        {"an outcome that is no number", {"UPDATE TblTeleItem SET AnswerInd = 'zz' WHERE AnswerInd = '4'"}, "3"},
        {"money as text",
         {"ALTER TABLE TblTeleItem ALTER COLUMN Discounted Text(20)", "UPDATE TblTeleItem SET Discounted = 'much'"},
         "3"},
        {"no caller column", {"ALTER TABLE TblTeleItem DROP COLUMN CallingNo"}, "3"},
    };
    for (const Damage& damage : damages) {
        BoundaryProject project;
        project.addAllCalls();
        for (const std::string& statement : damage.statements)
            gdbProject->execute(statement);
        for (const Boundary& boundary : {csg, exchange, district}) {
            mainFigures(boundary);
            const std::string area = boundary.key == std::string("CSG")        ? "113"
                                     : boundary.key == std::string("Exchange") ? "LEEDS"
                                                                               : "LS1";
            const std::string calls = valueOf(*gdbSystem, std::string("SELECT TotalCalls1 FROM ") + boundary.mainTable +
                                                              " WHERE " + boundary.key + " = '" + area + "'");
            // Where the geography is lost, CSGs and districts of the map still have their rows.
            const bool shaped = damage.callsInLeeds == std::string("no row") && boundary.key != std::string("Exchange");
            EXPECT_EQ(calls, shaped ? "0" : damage.callsInLeeds) << damage.name << ", " << boundary.name;
            EXPECT_EQ(valueOf(*gdbSystem, std::string("SELECT Count(*) FROM ") + boundary.mainTable + " WHERE " +
                                              boundary.key + " IN ('Republic Of Ireland', 'VOIP')"),
                      "2")
                << damage.name << ", " << boundary.name;
        }
    }
}

} // namespace
