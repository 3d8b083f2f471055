#include "groups/ModUtilities_DetermineProbableGroupDefinition.h"

#include "core/CurrentProcedure.h"
#include "core/LogAndGoOn.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "groups/GroupLinks.h"

namespace {

/// What groups can be made of in Callscope. A tie goes to the first.
struct ReferenceKind {
    const char* column; ///< of TblMappingGIS
    const char* name;   ///< null: its groups need no question
};

constexpr ReferenceKind referenceKinds[] = {
    {"Exchange", "Exchanges"}, {"CSG", "CSG's"}, {"DMSU", "DMSU's"}, {"PostCode", nullptr}, {"TVArea", nullptr}};

std::string ofAccount() {
    return " WHERE TallyAccount = " + quoted(gsAccount);
}

double matchesOf(const ReferenceKind& kind) {
    long count = 0;
    logAndGoOn([&] {
        count = countOf(projectDatabase(), "SELECT COUNT(*) AS RecordCount FROM tblGroups  INNER JOIN TblMappingGIS ON "
                                           "TblGroups.Reference = TblMappingGIS." +
                                               std::string(kind.column) + ofAccount());
    });
    return static_cast<double>(count);
}

const ReferenceKind& likeliestKind() {
    const ReferenceKind* likeliest = &referenceKinds[0];
    double best = 0;
    for (const ReferenceKind& kind : referenceKinds) {
        const double matches = matchesOf(kind);
        if (matches > best) {
            best = matches;
            likeliest = &kind;
        }
    }
    return *likeliest;
}

void deleteGroups() {
    ignoreErrors([] { projectDatabase().execute("DELETE FROM tblGroups" + ofAccount()); });
    ignoreErrors([] { customerGroupsDatabase().execute("DELETE FROM tblGroups" + ofAccount()); });
    for (const char* table : {"tblTempGroups ", "PGN_GROUPS", "PNT_GROUPS", "tblGroup_link"})
        ignoreErrors([&] { systemDatabase().execute("DELETE FROM " + std::string(table) + ofAccount()); });
}

} // namespace

GroupDefinition ModUtilities_DetermineProbableGroupDefinition() {
    const CurrentProcedure procedure("ModUtilities_DetermineProbableGroupDefinition");
    logAndGoOn([] { linkGroupTable("TblGroup_Link", "TblGroups"); });
    long total = 0;
    logAndGoOn(
        [&] { total = countOf(projectDatabase(), "SELECT COUNT(*) AS RecordCount FROM tblGroups" + ofAccount()); });
    if (total < 1)
        return GroupDefinition::NothingLeft;
    const ReferenceKind& kind = likeliestKind();
    if (kind.name &&
        !askYesNo("The groups existing for this project appear to have been set up for " + std::string(kind.name) +
                  ". Groups within mapping can only be set for TV Regions, CSG's and Postcodes.  To continue, the "
                  "existing groups must be deleted.  Do you wish to continue and delete existing groups?"))
        return GroupDefinition::Refused;
    deleteGroups();
    return GroupDefinition::NothingLeft;
}
