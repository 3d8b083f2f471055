#include "stats/ScanFigures.h"

#include "core/ModDeclarations.h"
#include "data/sqlite/Connection.h"
#include "stats/calls/BuildCallColumns.h"
#include "tests/support/SmallInstallation.h"

#include <gtest/gtest.h>

#include <random>

namespace {

const std::string T = "CDate(Left(CallTime,2) & ':' & Mid(CallTime, 4,2))";

/// Random projects and selections, the same for the same seed.
class Random {
public:
    explicit Random(unsigned seed) : engine_(seed) {}
    int below(int end) { return static_cast<int>(engine_() % static_cast<unsigned>(end)); }
    std::string oneOf(const std::vector<std::string>& texts) {
        return texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))];
    }

private:
    std::mt19937 engine_;
};

void run(const std::string& insert) {
    gdbProject->connection().execute("INSERT INTO " + gdbProject->schema() + "." + insert);
}

/// Everything that comparing without case and blanks, nulls and doubled rows can make difficult.
void fillProject(Random& random) {
    WorkspaceTransaction rows(*defaultWorkspace());
    const std::vector<std::string> codes{"'01'",  "'02'",     "'03'",  "'x'",    "'X'",  "'MOBILE'",    "'Mobile '",
                                         "'OLO'", "'NO CLI'", "'.33'", "'VOIP'", "NULL", "'UNTRACEAB'", "'99'"};
    const std::vector<std::string> areas{"'London'", "'london '", "'Mary''s Isle'", "'Granada'", "NULL",
                                         "''",       "'MOBILE'",  "'Mobile'",       "'VOIP'",    "'.France'"};
    for (int i = 0; i < 14; ++i)
        run("TblMappingGIS(\"1141\", TVArea) VALUES(" + random.oneOf(codes) + ", " + random.oneOf(areas) + ")");
    const std::vector<std::string> numbers{"'0800'", "'0800 '", "'0801'", "'Ab1'", "'aB1'", "NULL", "''", "'08?'"};
    const std::vector<std::string> callers{"NULL", "''",  "' '",    "'0123'", "'0123 '", "'123'", "'7'",
                                           "'8'",  "'9'", "'Anon'", "'ANON'", "'44'",    "'55'",  "'66'"};
    const std::vector<std::string> answers{"'0'", "'8'", "'0 '", "'2'",  "'9'",  "'4'",
                                           "'3'", "'x'", "'X'",  "'10'", "NULL", "''"};
    const std::vector<std::string> points{"'Leeds'", "'LEEDS'", "'Hull'", "'O''Hare'", "NULL"};
    const std::vector<std::string> money{"0", "1.5", "-0.25", "0.0001", "NULL", "2", "-3.3333"};
    for (int i = 0; i < 300; ++i) {
        const std::string date =
            random.below(12) == 0 ? "NULL" : std::to_string(45658 + random.below(6)) + random.oneOf({"", "", ".5"});
        run("TblTeleItem(CallDate, CallTime, CalledNo, CallingNo, \"1141\", AnswerInd, AnswerLoc, NetAddress, "
            "Discounted) "
            "VALUES(" +
            date + ", printf('%02d:%02d:30', " + std::to_string(random.below(24)) + ", " +
            random.oneOf({"0", "59", std::to_string(random.below(60))}) + "), " + random.oneOf(numbers) + ", " +
            random.oneOf(callers) + ", " + random.oneOf(codes) + ", " + random.oneOf(answers) + ", " +
            random.oneOf(points) + ", " + random.oneOf({"'D1'", "'d1'", "'D2'", "NULL"}) + ", " + random.oneOf(money) +
            ")");
    }
    rows.commit();
}

std::string day(Random& random) {
    return "#01/0" + std::to_string(1 + random.below(7)) + "/2025#";
}
std::string timeOfDay(Random& random) {
    return "#" + std::to_string(10 + random.below(14)) + ":" + random.oneOf({"00", "30", "59"}) + ":00#";
}

std::string simpleCondition(Random& random) {
    switch (random.below(16)) {
    case 0:
        return "CalledNo Like '" + random.oneOf({"0800", "0800 ", "08*", "08??", "ab1", "*", "[A-Z]*", "08#0"}) + "'";
    case 1:
        return "CalledNo In ('0800','AB1','zz')";
    case 2:
        return "(CalledNo = '0801' OR TblTeleItem.CalledNo = '0800' OR CalledNo Like 'a*')";
    case 3:
        return "TblTeleItem.NetAddress LIKE '" + random.oneOf({"D1", "d*", "D?"}) + "' ";
    case 4:
        return "AnswerLoc " + random.oneOf({"Not In ('Leeds', 'x')", "In ('Hull', null)", "Is Null", "Is Not Null"});
    case 5:
        return "CallDate Between " + day(random) + " And " + day(random);
    case 6:
        return T + " " + random.oneOf({"<", "<=", ">", ">=", "=", "<>"}) + " " + timeOfDay(random);
    case 7:
        return "Not (" + simpleCondition(random) + ")";
    case 8:
        return "AnswerInd " + random.oneOf({"<> '0'", "> '2'", "Is Null", "In ('x','8')", "Like '?'"});
    case 9:
        return "IsNull(CalledNo)";
    case 10:
        return "Left(AnswerLoc, 1) = 'l'";
    case 11:
        return "TblTeleItem.[1141] Not Like '.*'";
    case 12:
        return "(AnswerLoc = 'Leeds' Or CallDate > " + day(random) + ")";
    case 13:
        return "AnswerLoc Like '*''*'";
    case 14:
        return random.oneOf({"1 = 1", "CallDate Is Null", "CallingNo = '7'", "Discounted > 0", "CalledNo = AnswerLoc",
                             "TblMappingGIS.TVArea = 'London'", "CallDate = 'x'", "Nonsense = 1", "CalledNo Like"});
    default:
        return "CallDate >= " + day(random) + " AND CallDate <= " + day(random);
    }
}

/// As the parameter window writes it, or as a user might.
std::string selection(Random& random) {
    if (random.below(8) == 0)
        return "";
    std::string text = " CallDate >= #01/01/2025# AND CallDate <= " + day(random);
    if (random.below(3) == 0)
        text = " " + simpleCondition(random);
    if (random.below(4) == 0) {
        const std::string early = day(random);
        text += " AND (CallDate < " + early + " AND " + T + " > " + timeOfDay(random) + " OR (" + T +
                " <= #06:00:00#) AND " + "CallDate > " + day(random) + ")";
    }
    for (int more = random.below(3); more > 0; --more)
        text += random.oneOf({" AND ", " AND ", " AND ", " OR "}) + simpleCondition(random);
    return text;
}

std::string shown(const AreaName& area) {
    return area ? foldText(*area) : "null";
}
std::string shown(const Value& value) {
    return value.isNull() ? "null" : foldText(value.asText());
}

/// All figures of a source, as lines.
std::vector<std::string> figuresOf(FigureSource& source, const CallSelection& selection) {
    std::vector<std::string> lines;
    source.makeSelectedData(selection);
    source.makeCallers(CallerKind::Answered, selection.where);
    source.makeCallers(CallerKind::Lost, selection.where);
    for (const CallCount& row : source.callsByArea())
        lines.push_back("calls " + shown(row.area) + "|" + shown(row.answerInd) + "|" + std::to_string(row.calls));
    for (const CallMoney money : {CallMoney::Cost, CallMoney::Revenue}) {
        for (const MoneySum& row : source.moneyByArea(money))
            lines.push_back("money " + shown(row.area) + "|" + row.sum.asText());
    }
    for (const CallerKind kind : {CallerKind::Answered, CallerKind::Lost}) {
        for (const CallerCount& row : source.callersByArea(kind))
            lines.push_back("callers " + shown(row.area) + "|" + std::to_string(row.callers));
        for (const CallerCount& row : source.mobileAndVoipCallers(kind))
            lines.push_back("special callers " + shown(row.area) + "|" + std::to_string(row.callers));
    }
    for (const char* test :
         {" = 'VOIP'", " IN ('NO CLI', 'OLO', 'UNTRACEAB')", " LIKE '.*'", " = 'MOBILE'", " Is Null"}) {
        const SpecialRowFigures row = source.specialRow(test);
        lines.push_back(std::string("special") + test + " " + std::to_string(row.totalCalls) + " " +
                        std::to_string(row.answered) + " " + std::to_string(row.ineffective) + " " +
                        Value(row.cost).asText() + " " + Value(row.revenue).asText() + " " +
                        std::to_string(row.engaged) + " " + std::to_string(row.rtnr) + " " + std::to_string(row.other));
    }
    return lines;
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

TEST(ScanFigures, GiveTheRowsOfTheStatementsOnRandomProjects) {
    int scanned = 0;
    int compared = 0;
    for (unsigned seed = 1; seed <= 12; ++seed) {
        const SmallInstallation installation;
        Random random(seed);
        fillProject(random);
        const auto columns = std::make_shared<const CallColumns>(*buildCallColumns(*gdbProject, [] { return true; }));
        const WorkspaceTransaction neverWritten(*defaultWorkspace()); // the tables of the statements need no disk
        for (int turn = 0; turn < 40; ++turn) {
            const CallSelection wanted{selection(random), random.below(2) == 0};
            StatementFigures statements(tvRegions);
            ScanFigures scan(tvRegions, columns);
            const std::string expected = joined(figuresOf(statements, wanted));
            ASSERT_EQ(joined(figuresOf(scan, wanted)), expected) << "seed " << seed << ": " << wanted.where;
            ++compared;
            scanned += scan.selectedByScan();
        }
    }
    // Most selections must have been scanned, or the comparison says nothing.
    EXPECT_GT(scanned * 10, compared * 7) << scanned << " of " << compared;
}

/// What the parameter window can write is never left to statements.
TEST(ScanFigures, ScanEveryFormOfTheParameterWindow) {
    const SmallInstallation installation;
    Random random(1);
    fillProject(random);
    const auto columns = std::make_shared<const CallColumns>(*buildCallColumns(*gdbProject, [] { return true; }));
    std::string numbers = " AND CalledNo In (";
    for (int i = 0; i < 1500; ++i)
        numbers += (i == 0 ? "'" : ",'") + std::to_string(800 + i) + "'";
    const std::string days = " CallDate >= #03/05/2025# AND CallDate <= #25/03/2025#";
    const std::string forms[] = {
        "",
        days,
        days + " AND " + T + " >= #08:00:00# AND " + T + " <= #17:00:00#",
        days + " AND (" + T + " >= #22:00:00# OR " + T + " <= #06:00:00#)",
        days + " AND (CallDate < #25/03/2025# AND " + T + " > #22:00:00# OR (" + T +
            " <= #06:00:00#) AND CallDate > #03/05/2025#)",
        days + " AND CalledNo Like '0800'",
        days + numbers + ")",
        days + " AND AnswerLoc In ('Leeds','Hull') AND TblTeleItem.NetAddress LIKE 'D1' ",
    };
    for (const std::string& form : forms) {
        ScanFigures scan(tvRegions, columns);
        figuresOf(scan, {form});
        EXPECT_TRUE(scan.selectedByScan()) << form;
        EXPECT_TRUE(scan.callersByScan(CallerKind::Answered) && scan.callersByScan(CallerKind::Lost)) << form;
    }
    // A time that is none makes the statement fail; the scan must not give figures in its place.
    gdbProject->execute("UPDATE TblTeleItem SET CallTime = 'soon' WHERE AnswerInd = '4'");
    ScanFigures scan(tvRegions,
                     std::make_shared<const CallColumns>(*buildCallColumns(*gdbProject, [] { return true; })));
    figuresOf(scan, {forms[2]});
    EXPECT_FALSE(scan.selectedByScan());
    figuresOf(scan, {forms[1]});
    EXPECT_TRUE(scan.selectedByScan());
}

} // namespace
