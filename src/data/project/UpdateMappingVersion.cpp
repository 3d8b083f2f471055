#include "data/project/UpdateMappingVersion.h"

#include "core/LogAndGoOn.h"
#include "core/LogError.h"
#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/types/DatabaseError.h"

namespace {

const Money firstVersionWithNewGroups{11000}; // 1.1

SpecialGroupUpgrade& groupUpgrade() {
    static SpecialGroupUpgrade upgrade;
    return upgrade;
}

/// The first value of a query as a version; 0 where there is none.
Money versionFrom(const std::optional<Value>& value) {
    return value && !value->isNull() ? value->asMoney() : Money{};
}

/// Leaves `names` empty where the project has no account or the account no special group.
SpecialGroups readSpecialGroups() {
    SpecialGroups groups;
    const auto account = firstValue(projectDatabase(), "SELECT TallyAccount FROM Tbl50");
    if (!account)
        return groups;
    gsAccount = trimmedText(account->asText());
    openCustomerGroups();
    const auto rows = gdbCustomerGroups->openRecordset(
        "SELECT DISTINCT GroupName from TblGroups WHERE TallyAccount = " + quoted(gsAccount) +
        " AND UCASE(Reference) IN ('MOBILE', 'INTERNATIONAL', 'VOIP', 'OTHER') AND "
        "((GroupName IS NOT NULL) AND (GroupName <> ''))");
    for (; !rows->EOF_(); rows->MoveNext())
        groups.names.push_back(rows->value(0).asText());
    if (groups.names.empty())
        return groups;
    const auto dataType = firstValue(
        *gdbCustomerGroups, "SELECT DataType FROM TblMappingGroupSetup WHERE TallyAccount = " + quoted(gsAccount));
    if (dataType && !dataType->isNull())
        groups.dataType = static_cast<long>(dataType->asInteger());
    return groups;
}

void upgradeSpecialGroups() {
    SpecialGroups groups;
    logAndGoOn([&] { groups = readSpecialGroups(); });
    if (groups.names.empty())
        return;
    if (groupUpgrade()) {
        logAndGoOn([&] { groupUpgrade()(groups); });
        return;
    }
    std::string list;
    for (const std::string& name : groups.names)
        list += (list.empty() ? "" : ", ") + name;
    LogError(gsCurrentProc, 0, "The special groups of account " + gsAccount + " keep their old form: " + list);
}

void writeVersion(Money version, bool hasRow) {
    const std::string text = quoted(Value(version).asText());
    projectDatabase().execute(hasRow ? "UPDATE TblProjectInfo SET MappingVersion = " + text
                                     : "INSERT INTO TblProjectInfo (MappingVersion) VALUES (" + text + ")");
}

} // namespace

void setSpecialGroupUpgrade(SpecialGroupUpgrade upgrade) {
    groupUpgrade() = std::move(upgrade);
}

void UpdateMappingVersion() {
    gsCurrentProc = "ModUtilities_UpdateMappingVersion";
    Money projectVersion;
    Money systemVersion;
    bool hasRow = false;
    logAndGoOn([&] {
        const auto value = firstValue(projectDatabase(), "SELECT MappingVersion FROM TblProjectInfo");
        hasRow = value.has_value();
        projectVersion = versionFrom(value);
    });
    logAndGoOn([&] {
        systemVersion =
            versionFrom(firstValue(systemDatabase(), "SELECT Version FROM tblVersion ORDER BY Version DESC"));
    });
    if (projectVersion.tenThousandths >= systemVersion.tenThousandths)
        return;
    if (projectVersion.tenThousandths < firstVersionWithNewGroups.tenThousandths)
        upgradeSpecialGroups();
    logAndGoOn([&] { writeVersion(systemVersion, hasRow); });
}
