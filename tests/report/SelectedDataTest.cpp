#include "report/SelectedData.h"

#include "core/ModDeclarations.h"
#include "report/CaptureRow.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

Date day(int ofMarch) {
    return dateOf({.year = 2025, .month = 3, .day = ofMarch});
}

Date hour(int of) {
    return Date{of / 24.0};
}

/// An installation whose row remembers nothing, as after the capture of a project.
class CapturedInstallation : public SmallInstallation {
public:
    CapturedInstallation() {
        recordCapture();
        RecomputeSelection = false;
        gsBoundaryType = "TVRegion";
    }
};

ReportParameters someParameters() {
    ReportParameters parameters;
    parameters.DTStart = day(3);
    parameters.DTEnd = day(9);
    parameters.DTStartTime = {hour(8), hour(18)};
    parameters.OptInbound = 1;
    parameters.CmbInbound = "08001";
    parameters.OptAnswer = 2;
    parameters.CmbAnswerGroup = "North";
    return parameters;
}

bool recomputes(const ReportParameters& parameters) {
    RecomputeSelection = false;
    CheckSelectedData(parameters);
    return RecomputeSelection;
}

TEST(SelectedData, OnlyTheSameParametersTakeTheFiguresOfTheLastRun) {
    const CapturedInstallation installation;
    EXPECT_TRUE(recomputes(someParameters())) << "nothing has been counted yet";
    SaveSelectedData(someParameters());
    EXPECT_FALSE(recomputes(someParameters()));

    struct Change {
        const char* name;
        std::function<void(ReportParameters&)> make;
        bool recomputes;
    };
    const Change changes[] = {
        {"first day", [](auto& p) { p.DTStart = day(4); }, true},
        {"last day", [](auto& p) { p.DTEnd = day(8); }, true},
        {"time of the first day", [](auto& p) { p.DTStart.days += 0.25; }, false},
        {"hours after", [](auto& p) { p.DTStartTime[0] = hour(9); }, true},
        {"hours before", [](auto& p) { p.DTStartTime[1] = hour(17); }, true},
        {"overnight", [](auto& p) { p.ChkOverNight = true; }, true},
        {"another number", [](auto& p) { p.CmbInbound = "08002"; }, true},
        {"all numbers", [](auto& p) { p.OptInbound = 0; }, true},
        {"a community group", [](auto& p) { p.OptInbound = 2, p.cmbCG = "South"; }, true},
        {"a text whose option is not set", [](auto& p) { p.cmbCG = "South", p.CmbAnswer = "Leeds"; }, false},
        {"another group of answer points", [](auto& p) { p.CmbAnswerGroup = "South"; }, true},
        {"an answer point", [](auto& p) { p.OptAnswer = 1, p.CmbAnswer = "Leeds"; }, true},
        {"a destination", [](auto& p) { p.optDestinationNo = 1, p.cmbDestinationNo = "D1"; }, true},
    };
    for (const Change& change : changes) {
        ReportParameters parameters = someParameters();
        change.make(parameters);
        EXPECT_EQ(recomputes(parameters), change.recomputes) << change.name;
    }
    gsBoundaryType = "CSG";
    EXPECT_TRUE(recomputes(someParameters())) << "another boundary";
}

TEST(SelectedData, AProjectThatCallscopeHasChangedIsCountedAnewOnce) {
    const CapturedInstallation installation;
    SaveSelectedData(someParameters());
    gdbProject->execute("UPDATE Tbl50 SET UpdateMapping = 1");
    if (valueOf(*gdbProject, "SELECT Count(*) FROM Tbl50") == "0")
        gdbProject->execute("INSERT INTO Tbl50 (TallyAccount, UpdateMapping) VALUES ('ACC', 1)");
    EXPECT_TRUE(recomputes(someParameters()));
    EXPECT_EQ(valueOf(*gdbProject, "SELECT UpdateMapping FROM Tbl50"), "0");
    EXPECT_FALSE(recomputes(someParameters()));
}

TEST(SelectedData, WithoutARowNothingIsComparedOrSaved) {
    const CapturedInstallation installation;
    gdbSystem->execute("DELETE FROM TblDataCapture");
    SaveSelectedData(someParameters());
    EXPECT_FALSE(recomputes(someParameters()));
    EXPECT_EQ(valueOf(*gdbSystem, "SELECT Count(*) FROM TblDataCapture"), "0");
    EXPECT_TRUE(installation.logLines().empty());
}

MultiMapParameters sixRanges() {
    MultiMapParameters ranges;
    ranges.OptPeriods = 2;
    for (int map = 0; map < 6; ++map) {
        const auto at = static_cast<std::size_t>(map) * 4;
        ranges.DTPicker1[at] = day(1 + map);
        ranges.DTPicker1[at + 1] = hour(6 + map);
        ranges.DTPicker1[at + 2] = day(11 + map);
        ranges.DTPicker1[at + 3] = hour(13 + map);
    }
    return ranges;
}

bool recomputes(const ReportParameters& parameters, const MultiMapParameters& ranges) {
    RecomputeSelection = false;
    CheckMultiData(parameters, ranges);
    return RecomputeSelection;
}

TEST(MultiData, AnyPickerProjectOrChoiceThatDiffersIsCountedAnew) {
    const CapturedInstallation installation;
    EXPECT_TRUE(recomputes(someParameters(), sixRanges()));
    SaveMultiData(someParameters(), sixRanges());
    EXPECT_FALSE(recomputes(someParameters(), sixRanges()));

    for (std::size_t picker = 0; picker < 24; ++picker) {
        MultiMapParameters ranges = sixRanges();
        ranges.DTPicker1[picker].days += picker % 2 == 0 ? 1 : 1.0 / 86400;
        EXPECT_TRUE(recomputes(someParameters(), ranges)) << picker;
    }
    MultiMapParameters four = sixRanges();
    four.OptPeriods = 1;
    EXPECT_TRUE(recomputes(someParameters(), four));
    ReportParameters other = someParameters();
    other.CmbInbound = "08002";
    EXPECT_TRUE(recomputes(other, sixRanges()));
    gsProjectPath += "x";
    EXPECT_TRUE(recomputes(someParameters(), sixRanges()));
}

TEST(MultiData, NeitherTheOvernightTickNorAChangedProjectIsLookedAt) {
    const CapturedInstallation installation;
    SaveMultiData(someParameters(), sixRanges());
    ReportParameters overnight = someParameters();
    overnight.ChkOverNight = true;
    gdbProject->execute("UPDATE Tbl50 SET UpdateMapping = 1");
    EXPECT_FALSE(recomputes(overnight, sixRanges()));
}

TEST(MultiData, TheSettingsComeBackForTheirOwnProjectOnly) {
    const CapturedInstallation installation;
    EXPECT_FALSE(capturedMultiMapSettings().has_value());
    gsBoundaryType = "PostcodeDistrict";
    SaveMultiData(someParameters(), sixRanges());
    const auto settings = capturedMultiMapSettings();
    ASSERT_TRUE(settings.has_value());
    EXPECT_EQ(settings->boundaryType, "PostcodeDistrict");
    EXPECT_EQ(settings->ranges.OptPeriods, 2);
    EXPECT_EQ(settings->ranges.DTPicker1, sixRanges().DTPicker1);
    gsProjectPath += "x";
    EXPECT_FALSE(capturedMultiMapSettings().has_value());
}

} // namespace
