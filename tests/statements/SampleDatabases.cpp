#include "tests/statements/SampleDatabases.h"

#include "core/ModDeclarations.h"
#include "core/cPathControl.h"
#include "data/project/CreateLinkTables.h"
#include "data/project/Databases.h"
#include "data/schema/Vocabulary.h"
#include "sample/installation/SampleInstallation.h"

#include <stdexcept>

namespace {

struct Boundary {
    const char* name; ///< of its tables: TblTV, TblSelectedDataForTV
    const char* key;
    const char* column; ///< of the geography
};

constexpr Boundary boundaries[]{{"TV", "TVRegion", "TVArea"},
                                {"CSG", "CSG", "CSG"},
                                {"ExchangeArea", "Exchange", "Exchange"},
                                {"PostCodeDistrict", "PostCodeDistrict", "PostCode"},
                                {"CustomerGroups", "GroupName", "GroupName"}};

const std::string measures = ", TotalCalls1, Answered1, Ineffective1, Cost1, Revenue1, Engaged1, RTNR1, Other1, "
                             "LostCallers1, AnsweredCallers1";

/// The whole project in a main table, by one grouped statement: another way than the program's, whose steps are the
/// cases. The callers are only made up. The selected table gets the same, in slot 7 as well where it has one.
void fillStatistics(Database& system, const Boundary& boundary) {
    const std::string key = boundary.key;
    const std::string table = std::string("Tbl") + boundary.name;
    const std::string selected = std::string("TblSelectedDataFor") + boundary.name;
    const std::string groups = key == "GroupName" ? " INNER JOIN TblGroup_Link ON g.PostCode = Reference" : "";
    system.execute("INSERT INTO " + table + " (" + key + measures + ") SELECT " + boundary.column +
                   ", Count(*), Sum(IIf(AnswerInd In ('0','8'), 1, 0)), Sum(IIf(AnswerInd In ('0','8'), 0, 1)), "
                   "Sum(IIf(Discounted > 0, Discounted, 0)), -Sum(IIf(Discounted < 0, Discounted, 0)), "
                   "Sum(IIf(AnswerInd In ('2','9'), 1, 0)), Sum(IIf(AnswerInd = '4', 1, 0)), "
                   "Sum(IIf(AnswerInd In ('0','2','4','8','9'), 0, 1)), 0, 0 FROM (TblTeleItem_Link AS c INNER JOIN "
                   "TblGIS_Link AS g ON c.[1141] = g.[1141])" +
                   groups + " WHERE " + boundary.column + " <> '' GROUP BY " + boundary.column);
    system.execute("UPDATE " + table + " SET AnsweredCallers1 = Answered1 \\ 2, LostCallers1 = Ineffective1 \\ 2");
    system.execute("INSERT INTO " + selected + " SELECT " + key + measures + " FROM " + table);
    if (system.tableDefs().find(selected)->findField("TotalCalls7"))
        system.execute("UPDATE " + selected +
                       " SET TotalCalls7 = TotalCalls1, Answered7 = Answered1, AnsweredCallers7 = AnsweredCallers1");
}

void fillStatistics(Database& system) {
    WorkspaceTransaction transaction(*system.workspace());
    for (const Boundary& boundary : boundaries)
        fillStatistics(system, boundary);
    for (const std::string number : {"1", "2"}) {
        system.execute("INSERT INTO TblAnimatedTV" + number + " SELECT TVRegion" + measures + " FROM TblTV");
        system.execute("INSERT INTO TblAnimatedPostCodeDistrict" + number + " SELECT PostCodeDistrict" + measures +
                       " FROM TblPostCodeDistrict");
    }
    transaction.commit();
}

} // namespace

SampleDatabases& SampleDatabases::shared() {
    static SampleDatabases databases;
    return databases;
}

SampleDatabases::SampleDatabases() {
    const sample::SampleReport report =
        sample::makeSampleInstallation({.folder = folder_.text(), .calls = 20'000, .seed = 1});
    gPaths = std::make_shared<cPathControl>(report.applicationFolder, report.applicationFolder);
    gPaths->ApplicationDataPath = report.applicationFolder;
    gPaths->SystemDataPath = report.systemFolder;
    gsSystemDBPath = report.systemMapPath;
    gsProjectPath = report.projectPath;
    gsAccount = "SAMPLE01";
    reopenSystemDatabase();
    reopenProject();
    openCustomerGroups();
    if (ModUtilities_CreateLinkTables() != 0)
        throw std::runtime_error("the sample project cannot be linked");
    databases_ = {{"project", gdbProject},
                  {"system", gdbSystem},
                  {"groups", gdbCustomerGroups},
                  {"delivered", defaultWorkspace()->openDatabase(report.deliveredMapPath, Workspace::Access::Shared,
                                                                 SystemMapConnect)}};
    fillStatistics(*gdbSystem);
}

std::string SampleDatabases::withPaths(std::string text) const {
    for (const auto& [name, database] : databases_) {
        const std::string mark = "{" + name + "}";
        for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at))
            text.replace(at, mark.size(), database->name());
    }
    return text;
}

void SampleDatabases::attach(Database& to, const std::string& link, const std::string& table,
                             const std::string& from) const {
    TableDef definition = to.createTableDef(link);
    definition.sourceTableName = table;
    definition.connect = "MS Access;DATABASE=" + database(from).name();
    if (from == "project")
        definition.connect += ";PWD=" + std::string(ProjectPassword);
    if (from == "system" || from == "delivered")
        definition.connect += ";PWD=" + std::string(SystemMapPassword);
    to.tableDefs().append(definition);
}
