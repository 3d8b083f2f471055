#include "tests/support/SmallInstallation.h"

#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "data/engine/Workspace.h"

#include <cstdio>
#include <fstream>
#include <initializer_list>

namespace {

std::shared_ptr<Database> makeFile(const std::string& path, DatabaseKind kind, std::string_view connect,
                                   std::initializer_list<const char*> tables) {
    auto database = defaultWorkspace()->createDatabase(path, connect);
    WorkspaceTransaction making(*defaultWorkspace());
    for (const char* table : tables)
        createVocabularyTable(*database, kind, table);
    making.commit();
    return database;
}

std::string literal(const std::string& text) {
    if (text == "null")
        return "NULL";
    std::string doubled;
    for (const char c : text)
        doubled += c == '\'' ? "''" : std::string(1, c);
    return "'" + doubled + "'";
}

std::string shown(const Value& value) {
    return value.isNull() ? "null" : value.asText();
}

} // namespace

SmallInstallation::SmallInstallation() {
    resetGlobals();
    resetDefaultWorkspace();
    gPaths = std::make_shared<cPathControl>(folder_.path().string(), folder_.path().string());
    gPaths->ApplicationDataPath = folder_.path().string();
    gPaths->SystemDataPath = folder_.path().string();
    gsSystemDBPath = file("ukmap.mdb");
    gsProjectPath = file("project.mdb");
    gsAccount = "ACC";

    makeFile(file("CustomerGroups.mdb"), DatabaseKind::CustomerGroups, {},
             {"TblGroups", "TblName", "tblMappingGroupSetup", "TblAnswerPoints", "tblCommunityGroups"})
        ->close();
    defaultWorkspace()->createDatabase(file("comgroups.mdb"), ProjectConnect)->close();
    makeFile(file("CSProject.bak"), DatabaseKind::Project, ProjectConnect, {"TblProjectInfo"})->close();
    gdbSystem = makeFile(gsSystemDBPath, DatabaseKind::SystemMap, SystemMapConnect,
                         {"PGN_TV", "PNT_TVNAMES", "PGN_EXCHANGEAREA", "PGN_GROUPS", "TblTV", "TblCSG",
                          "TblCustomerGroups", "TblSelectedDataForTV", "TblSelectedDataForCSG",
                          "TblSelectedDataForPostCodeDistrict", "TblAnimatedTV1", "TblLookup1141", "TblVersion",
                          "TblSettings", "tblTVPopulationDensity", "tblPostCodePopulationDensity"});
    gdbProject = makeFile(gsProjectPath, DatabaseKind::Project, ProjectConnect,
                          {"TblTeleItem", "TblGIS", "TblMappingGIS", "Tbl50", "TblProjectInfo", "TblSettings"});
    gdbProject->execute("INSERT INTO Tbl50 (TallyAccount) VALUES ('ACC')");
}

SmallInstallation::~SmallInstallation() {
    resetGlobals();
    resetDefaultWorkspace();
}

void SmallInstallation::addCalls(const std::vector<SmallCall>& calls) {
    WorkspaceTransaction rows(*defaultWorkspace());
    for (const SmallCall& call : calls) {
        char money[32];
        std::snprintf(money, sizeof money, "%.4f", call.discounted);
        gdbProject->execute("INSERT INTO TblTeleItem (CallDate, CallTime, CalledNo, CallingNo, [1141], AnswerInd, "
                            "Discounted, AnswerLoc, NetAddress) VALUES (#1/" +
                            std::to_string(call.day) + "/2025#, " + literal(call.time) + ", " + literal(call.called) +
                            ", " + literal(call.caller.empty() ? "null" : call.caller) + ", " + literal(call.code) +
                            ", " + literal(call.answerInd) + ", " + money + ", " + literal(call.answerPoint) + ", " +
                            literal(call.destination) + ")");
    }
    rows.commit();
}

void SmallInstallation::addPlaces(const std::vector<SmallPlace>& places, const std::string& table) {
    WorkspaceTransaction rows(*defaultWorkspace());
    for (const SmallPlace& place : places)
        gdbProject->execute("INSERT INTO " + table + " ([1141], TVArea, Exchange) VALUES (" + literal(place.code) +
                            ", " + literal(place.tvArea) + ", " + literal(place.exchange) + ")");
    rows.commit();
}

std::vector<std::string> SmallInstallation::logLines() const {
    std::vector<std::string> lines;
    std::ifstream log(file("CS Mapping Error.log"));
    for (std::string line; std::getline(log, line);)
        lines.push_back(line.substr(line.find(',') + 1));
    return lines;
}

long SmallInstallation::logLinesWith(const std::string& text) const {
    long count = 0;
    for (const std::string& line : logLines())
        count += line.find(text) != std::string::npos;
    return count;
}

std::vector<std::string> rowsOf(Database& database, std::string_view query) {
    std::vector<std::string> lines;
    const auto rows = database.openRecordset(query);
    for (; !rows->EOF_(); rows->MoveNext()) {
        std::string line = shown(rows->value(0));
        for (int column = 1; column < rows->fieldCount(); ++column)
            line += "|" + shown(rows->value(column));
        lines.push_back(std::move(line));
    }
    return lines;
}

std::string valueOf(Database& database, std::string_view query) {
    const auto rows = rowsOf(database, query);
    return rows.empty() ? "no row" : rows.front();
}
