#include "tests/stats/compare/RandomProject.h"

#include "data/project/Databases.h"
#include "data/sqlite/Connection.h"

#include <cstdio>

namespace {

using Texts = std::vector<OptionalText>;

const Texts codes{"01",   "02",  "03",  "04", "x",         "X",  "MOBILE", "Mobile ",    "OLO",    "NO CLI",
                  "VOIP", ".33", ".49", "0",  "UNTRACEAB", "99", "",       std::nullopt, "MOBILE", "NO CLI"};
const Texts regions{"London", "london ",  "Granada",   "Border",       "Mary's Isle", std::nullopt,
                    "",       "Ynys Môn", "YNYS MÔN ", "Granada West", ".Sark"};
const Texts csgs{"113", "114", "0", "12.5", "-7", "abc", "113 ", "O'Dea", std::nullopt, ""};
const Texts exchangeNames{"LEEDS",    "leeds ",     "NORTHERN", "Northern", "HULL",
                          "St Ann's", std::nullopt, " ",        "BATH",     ".Sark"};
const Texts districts{"LS1", "ls1 ", "S1", "HU1", "W1'2", std::nullopt, "", "ZE3"};
const Texts numbers{"0800", "0800", "0800 ", "0801", "Ab1", "aB1", std::nullopt, "", "08?"};
const Texts callers{std::nullopt,
                    "",
                    " ",
                    "0123",
                    "0123 ",
                    "123",
                    "7",
                    "8",
                    "9",
                    "Anon",
                    "ANON",
                    "44",
                    "anon ",
                    "55",
                    "66",
                    "77",
                    "é",
                    "É",
                    "12345678901234567890"};
const Texts answers{"0", "0",  "0",  "8",  "2",  "9", "4", "4",          "3", "x",
                    "X", "10", "0 ", "08", "-2", "",  " ", std::nullopt, " 8"};
const Texts points{"Leeds", "LEEDS", "Hull", "O'Hare", "Bath", std::nullopt};
const Texts destinations{"D1", "d1", "D2", std::nullopt};
const Texts payphones{"P", "p", "P ", "N", "", std::nullopt};

/// A code that is no place mostly lies in the area of its own name.
OptionalText areaOf(Random& random, const OptionalText& code, const Texts& areas) {
    const bool isPlace = !code || code->empty() || (*code >= "0" && *code < "A") || *code == "x" || *code == "X";
    if (isPlace || random.oneIn(5))
        return random.oneOf(areas);
    return *code == ".33" ? OptionalText(".France") : code;
}

void bindText(sqlite::Statement& statement, int parameter, const OptionalText& text) {
    if (text)
        statement.bind(parameter, *text);
    else
        statement.bindNull(parameter);
}

void insert(Database& database, const std::string& table, const Texts& row) {
    std::string marks = "?";
    for (std::size_t i = 1; i < row.size(); ++i)
        marks += ", ?";
    sqlite::Statement statement(database.connection(),
                                "INSERT INTO " + database.schema() + "." + table + " VALUES (" + marks + ")");
    for (std::size_t i = 0; i < row.size(); ++i)
        bindText(statement, static_cast<int>(i) + 1, row[i]);
    statement.step();
}

void storeGroups(const ProjectContent& content) {
    for (const GroupMember& member : content.groups)
        insert(*gdbProject, "TblGroups(TallyAccount, Reference, GroupName)", {"ACC", member.reference, member.group});
    insert(*gdbSystem, "tblTempGroups(TallyAccount, Reference, GroupName)", {"ACC", "Mobile", "Phones"});
    openCustomerGroups();
    insert(*gdbCustomerGroups, "tblMappingGroupSetup(TALLYACCOUNT, DataType)", {"ACC", content.groupKind});
    const std::string numberRow = "tblCommunityGroups(TallyAccount, Reference, GroupName, GroupName2)";
    insert(*gdbCustomerGroups, numberRow, {"ACC", salesNumbers[0], "Sales", std::nullopt});
    insert(*gdbCustomerGroups, numberRow, {"ACC", salesNumbers[1], "More", "Sales"});
    insert(*gdbCustomerGroups, numberRow, {"ACC", unallocatedNumbers[0], std::nullopt, std::nullopt});
    insert(*gdbCustomerGroups, numberRow, {"ELSE", "0802", "Sales", std::nullopt});
    const std::string pointRow = "TblAnswerPoints(TallyAccount, Reference, GroupName)";
    for (const std::string& point : northPoints)
        insert(*gdbCustomerGroups, pointRow, {"ACC", point, "North"});
    insert(*gdbCustomerGroups, pointRow, {"ACC", unallocatedPoints[0], std::nullopt});
}

} // namespace

ProjectCall makeCall(Random& random) {
    ProjectCall call;
    if (!random.oneIn(15))
        call.date = firstCallDay + random.below(callDays) + (random.oneIn(4) ? 0.5 : 0.0);
    call.hour = random.below(24);
    call.minute = random.oneOf<int>({0, 59, random.below(60)});
    char time[16];
    std::snprintf(time, sizeof time, random.oneIn(8) ? "%02d-%02d" : "%02d:%02d:59", call.hour, call.minute);
    call.time = time;
    call.called = random.oneOf(numbers);
    call.caller = random.oneOf(callers);
    call.code = random.oneOf(codes);
    call.answerInd = random.oneOf(answers);
    call.answerPoint = random.oneOf(points);
    call.destination = random.oneOf(destinations);
    call.payphone = random.oneOf(payphones);
    if (!random.oneIn(12))
        call.discounted = random.oneOf<long>({0, 15000, -2500, 1, 20000, -33333, random.below(900000) - 300000});
    return call;
}

ProjectContent makeProjectContent(Random& random) {
    ProjectContent content;
    for (int i = random.below(30); i >= 0; --i) {
        const OptionalText code = random.oneOf(codes);
        content.places.push_back({code, areaOf(random, code, regions), areaOf(random, code, csgs),
                                  areaOf(random, code, exchangeNames), areaOf(random, code, districts)});
    }
    for (int i = random.oneOf<int>({0, 20, 150, 150}) + random.below(20); i > 0; --i)
        content.calls.push_back(makeCall(random));
    for (int i = random.below(8); i > 0; --i) {
        const OptionalText member =
            random.oneOf<OptionalText>({random.oneOf(regions), random.oneOf(csgs), random.oneOf(districts), "Mobile",
                                        "Other", "International", "VOIP"});
        if (member)
            content.groups.push_back({*member, random.oneOf<OptionalText>({"North", "north", "South", "", std::nullopt,
                                                                           "O'Neil", "Phones", "Other", "Mobile"})});
    }
    content.groupKind = random.oneOf<std::string>({"1", "2", "3", "7"});
    for (const char* shape : {"113", "115", "115", "O'Dea"}) {
        if (random.oneIn(2))
            content.csgShapes.push_back(shape);
    }
    for (const char* shape : {"LS1", "LS9", "ze3", "Y'1"}) {
        if (random.oneIn(2))
            content.districtShapes.push_back(shape);
    }
    content.hasLookup = random.oneIn(2);
    return content;
}

RandomInstallation::RandomInstallation(const ProjectContent& content) {
    WorkspaceTransaction setUp(*defaultWorkspace());
    createVocabularyTable(*gdbSystem, DatabaseKind::SystemMap, "TblAnimatedPostCodeDistrict2");
    gdbProject->execute("DELETE FROM TblMappingGIS");
    for (const char* table : {"PGN_CSG", "PGN_POSTCODEDISTRICT"})
        gdbSystem->execute(std::string("DELETE FROM ") + table);
    for (const std::string& shape : content.csgShapes)
        insert(*gdbSystem, "PGN_CSG(Name)", {shape});
    for (const std::string& shape : content.districtShapes)
        insert(*gdbSystem, "PGN_POSTCODEDISTRICT(Name)", {shape});
    for (const ProjectPlace& place : content.places) {
        insert(*gdbProject, "TblMappingGIS(\"1141\", TVArea, CSG, Exchange, PostCode)",
               {place.code, place.tvArea, place.csg, place.exchange, place.postCode});
        if (content.hasLookup)
            insert(*gdbSystem, "TblLookup1141(\"1141\", TVArea, Exchange, PostCode)",
                   {"elsewhere", place.tvArea, place.exchange, place.postCode});
    }
    for (const ProjectCall& call : content.calls)
        storeCall(call);
    attach("TblGroup_Link", "TblGroups", "CustomerGroups.mdb");
    storeGroups(content);
    setUp.commit();
}

void storeCall(const ProjectCall& call) {
    sqlite::Statement statement(
        gdbProject->connection(),
        "INSERT INTO " + gdbProject->schema() +
            ".TblTeleItem(CallTime, CalledNo, CallingNo, \"1141\", AnswerInd, AnswerLoc, "
            "NetAddress, PayPhone, CallDate, Discounted) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    int parameter = 0;
    for (const OptionalText& text : Texts{call.time, call.called, call.caller, call.code, call.answerInd,
                                          call.answerPoint, call.destination, call.payphone})
        bindText(statement, ++parameter, text);
    if (call.date)
        statement.bind(9, *call.date);
    if (call.discounted)
        statement.bind(10, static_cast<double>(*call.discounted) / 10000.0);
    statement.step();
}

std::vector<ProjectPlace> storedPlaces() {
    std::vector<ProjectPlace> places;
    const auto rows =
        projectDatabase().openRecordset("SELECT [1141], TVArea, CSG, Exchange, PostCode FROM TblMappingGIS");
    for (; !rows->EOF_(); rows->MoveNext()) {
        const auto text = [&](int column) {
            return rows->value(column).isNull() ? OptionalText() : OptionalText(rows->value(column).asText());
        };
        places.push_back({text(0), text(1), text(2), text(3), text(4)});
    }
    return places;
}
