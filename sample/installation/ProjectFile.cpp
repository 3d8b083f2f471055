#include "sample/installation/ProjectFile.h"

#include "data/engine/Database.h"
#include "data/engine/Workspace.h"
#include "data/schema/Vocabulary.h"
#include "sample/installation/InstallationFacts.h"
#include "sample/installation/RowWriter.h"
#include "sample/installation/TeleItemWriter.h"

#include <algorithm>

namespace sample {

namespace {

void createTables(Database& project) {
    for (const VocabularyTable& table : tableVocabulary()) {
        if (table.database == DatabaseKind::Project && table.origin == TableOrigin::Delivered)
            project.tableDefs().append(table.definition);
    }
    createVocabularyTable(project, DatabaseKind::Project, "TblProjectInfo");
}

void writeGroups(Database& project, const Geography& geography) {
    RowWriter groups(project, "TblGroups");
    for (const GroupMember& member : groupMembers(geography))
        groups.add({tallyAccount, member.district, member.group});
    RowWriter names(project, "TblName");
    for (const BranchGroup& group : groupBranches(geography))
        names.add({tallyAccount, group.name});
}

void writeReference(Database& project, const Geography& geography, std::span<const ReferenceCode> codes) {
    for (const char* table : {"TblMappingGIS", "TblSettings"})
        createVocabularyTable(project, DatabaseKind::Project, table);
    for (const char* table : {"TblGIS", "TblMappingGIS"})
        writeCodes(project, table, codes);
    RowWriter(project, "Tbl50").add({tallyAccount, 0, 0});
    RowWriter numbers(project, "TblKeyNumbers");
    for (const InboundNumber& number : inboundNumbers())
        numbers.add({number.number});
    RowWriter countries(project, "TblKeyCountries");
    for (const AnswerPoint& point : answerPoints())
        countries.add({point.name});
    RowWriter(project, "TblProjectInfo").add({shortestText(mapVersion.toDouble())});
    RowWriter(project, "TblSettings").add({boundaryDate()});
    writeGroups(project, geography);
}

} // namespace

ProjectFacts writeCalls(Database& project, const Geography& geography, std::span<const ReferenceCode> codes,
                        std::int64_t calls, std::uint64_t seed) {
    constexpr std::int64_t callsOfACaller = 4;
    SeededRandom seeds(seed);
    const CallCalendar calendar(geography.tvRegions.size() - 1, seeds.bits()); // the last is abroad
    const CallerPool callers(codes, geography,
                             static_cast<std::size_t>(std::max<std::int64_t>(1, calls / callsOfACaller)), seeds.bits());
    CallGenerator generator(calendar, callers, calls, seeds.bits());

    ProjectFacts facts;
    facts.callers = static_cast<std::int64_t>(callers.size());
    WorkspaceTransaction transaction(*project.workspace());
    {
        TeleItemWriter writer(project, calendar, callers);
        for (Call call; generator.next(call); ++facts.calls) {
            if (facts.calls == 0)
                facts.firstDate = calendar.date(call.day);
            facts.lastDate = calendar.date(call.day);
            writer.write(call);
        }
    }
    transaction.commit();
    return facts;
}

ProjectFacts writeProject(Workspace& workspace, const std::string& path, const Geography& geography,
                          std::span<const ReferenceCode> codes, std::int64_t calls, std::uint64_t seed) {
    const auto project = workspace.createDatabase(path, ProjectConnect);
    WorkspaceTransaction transaction(workspace);
    createTables(*project);
    writeReference(*project, geography, codes);
    const ProjectFacts facts = writeCalls(*project, geography, codes, calls, seed);
    RowWriter(*project, "TblCallSummary1").add({facts.firstDate, facts.lastDate});
    transaction.commit();
    return facts;
}

void writeProjectTemplate(Workspace& workspace, const std::string& path) {
    const auto project = workspace.createDatabase(path, ProjectConnect);
    WorkspaceTransaction transaction(workspace);
    createTables(*project);
    transaction.commit();
}

} // namespace sample
