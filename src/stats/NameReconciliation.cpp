#include "stats/NameReconciliation.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "core/Progress.h"
#include "core/Prompts.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "stats/CurrentProcedure.h"

#include <vector>

namespace {

constexpr const char* groupQuestion =
    "Name changes have been detected in the GIS file.  For Customer Groups to be displayed correctly, the new names "
    "must "
    "be applied to the Customer Groups.  Click 'Yes' to apply these changes automatically.  If you click 'No' Customer "
    "Groups may have to be updated manually in Callscope";

std::string trimmed(const Value& value) {
    const std::string text = value.asText();
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string() : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string withoutApostrophes(std::string text) {
    std::erase(text, '\'');
    return text;
}

std::string doubledApostrophes(const std::string& text) {
    std::string doubled;
    for (const char c : text)
        doubled += c == '\'' ? "''" : std::string(1, c);
    return doubled;
}

/// An old name of the lookup with the code under which it was found (only where renames go by code).
struct OldName {
    std::string name;
    std::string code;
};

class Reconciliation {
public:
    explicit Reconciliation(const ReconciledNames& names)
        : names_(names), column_(names.column), system_(systemDatabase()) {}

    void run() {
        readGroupType();
        collectProjectNames();
        for (const std::string& name : unknownNames()) {
            reconcile(cleaned(name));
            progress().yield();
        }
    }

private:
    void readGroupType();
    void collectProjectNames();
    std::vector<std::string> unknownNames();
    std::string cleaned(const std::string& name);
    void reconcile(const std::string& name);
    std::optional<OldName> mostUsedOldName(const std::string& name);
    void correctLookup(const std::string& oldName, const std::string& name);
    void renameOnMap(const OldName& old, const std::string& name);
    void renameGroups(const std::string& oldName, const std::string& name);

    std::string comparedArea(std::string_view table) const {
        return "left(" + std::string(table) + "." + column_ + ", " + std::to_string(names_.comparedWidth) + ")";
    }

    const ReconciledNames& names_;
    std::string column_;
    Database& system_;
    bool groupsByThisBoundary_ = false;
    bool ask_ = true;
    bool apply_ = false;
};

/// An account without set-up, or a system map database that no groups were ever transferred to, has no such groups.
void Reconciliation::readGroupType() {
    system_.tableDefs().refresh();
    if (!system_.tableDefs().find("tblMappingGroupSetup_Link"))
        return;
    const auto setup =
        system_.openRecordset("SELECT * FROM tblMappingGroupSetup_Link WHERE TallyAccount = " + quoted(gsAccount));
    if (!setup->EOF_() && !setup->value("DataType").isNull() && names_.groupDataType != 0)
        groupsByThisBoundary_ = setup->value("DataType").asText() == std::to_string(names_.groupDataType);
}

void Reconciliation::collectProjectNames() {
    ignoreErrors([&] { system_.execute("DROP TABLE TblTemp1"); });
    system_.execute("SELECT DISTINCT trim(" + comparedArea("tblGIS_Link") + ") AS " + column_ +
                    " INTO TblTemp1 FROM tblGIS_Link;");
    system_.execute("DELETE FROM TblTemp1 WHERE UCASE(" + column_ +
                    ") IN ('MOBILE', 'INTERNATIONAL', 'OTHER', 'VOIP')");
    if (!names_.notNames.empty())
        system_.execute(names_.notNames);
}

std::vector<std::string> Reconciliation::unknownNames() {
    const auto rows =
        system_.openRecordset("SELECT TblTemp1." + column_ + " AS " + std::string(names_.resultField) +
                              " FROM TblTemp1 LEFT JOIN tblLookup1141 ON TblTemp1." + column_ + " = trim(" +
                              comparedArea("tblLookup1141") + ") WHERE tblLookup1141." + column_ + " IS NULL");
    std::vector<std::string> unknown;
    for (; !rows->EOF_(); rows->MoveNext())
        unknown.push_back(trimmed(rows->value(0)));
    return unknown;
}

/// The name without apostrophes, to which the project's own value is brought.
std::string Reconciliation::cleaned(const std::string& name) {
    if (name.find('\'') == std::string::npos)
        return name;
    const std::string plain = withoutApostrophes(name);
    system_.execute("UPDATE TblGIS_Link SET " + column_ + " = " + quoted(plain) + " WHERE " + column_ + " = " +
                    quoted(doubledApostrophes(name)));
    return plain;
}

void Reconciliation::reconcile(const std::string& name) {
    const auto old = mostUsedOldName(name);
    if (!old)
        return;
    const auto polygon = system_.openRecordset("select polygonid from " + std::string(names_.polygonTable) +
                                               " where name = " + quoted(name));
    if (polygon->EOF_())
        renameOnMap(*old, name);
    else
        correctLookup(old->name, name);
}

/// What the lookup calls the codes that the project has under `name`.
std::optional<OldName> Reconciliation::mostUsedOldName(const std::string& name) {
    const std::string lookup = "tblLookup1141." + column_;
    const std::string code = names_.renameByCode ? ", tblLookup1141.[1141]" : "";
    const auto rows = system_.openRecordset(
        "SELECT " + lookup + ", Count(" + lookup + ") AS CountOf" + column_ +
        (code.empty() ? "" : code + " AS 1141Code") +
        " FROM tblLookup1141 INNER JOIN TblGIS_Link ON tblLookup1141.[1141] = TblGIS_Link.[1141] WHERE (((Trim(Left("
        "TblGIS_Link." +
        column_ + "," + std::to_string(names_.comparedWidth) + ")))=" + quoted(name) + ")) GROUP BY " + lookup + code +
        " ORDER BY Count(TblGIS_Link." + column_ + ") DESC");
    if (rows->EOF_())
        return std::nullopt;
    return OldName{trimmed(rows->value(0)), code.empty() ? std::string() : rows->value(2).asText()};
}

void Reconciliation::correctLookup(const std::string& oldName, const std::string& name) {
    system_.execute("UPDATE tblLookup1141 INNER JOIN TblGIS_Link ON tblLookup1141.[1141] = TblGIS_Link.[1141] SET "
                    "tblLookup1141." +
                    column_ + " = TblGIS_Link." + column_ + " WHERE (((tblLookup1141." + column_ +
                    ")=" + quoted(oldName) + ") AND ((TblGIS_Link." + column_ + ")=" + quoted(name) + "))");
}

void Reconciliation::renameOnMap(const OldName& old, const std::string& name) {
    const std::string from = quoted(old.name);
    const std::string to = quoted(name);
    for (const std::string_view table : {names_.polygonTable, names_.labelTable})
        system_.execute("UPDATE " + std::string(table) + " SET Name = " + to + " WHERE TRIM(Name) = " + from);
    system_.execute("UPDATE tblLookup1141 SET " + column_ + " = " + to + " WHERE TRIM(" + column_ + ") = " + from +
                    (names_.renameByCode ? " AND [1141] = " + quoted(old.code) : ""));
    if (groupsByThisBoundary_)
        system_.execute("UPDATE tblCustomerGroups LEFT JOIN PGN_GROUPS ON tblCustomerGroups.GroupName = "
                        "PGN_GROUPS.GROUPNAME SET tblCustomerGroups.GroupName = " +
                        to + " WHERE (((PGN_GROUPS.GROUPNAME) Is Null)) AND tblCustomerGroups.GroupName = " + from);
    if (names_.groupDataType != 0 && (ask_ || apply_))
        renameGroups(old.name, name);
    if (!names_.statisticsTable.empty()) {
        const std::string area(names_.statisticsColumn);
        system_.execute("UPDATE " + std::string(names_.statisticsTable) + " SET " + area + " = " + to + " WHERE " +
                        area + " = " + from);
    }
}

void Reconciliation::renameGroups(const std::string& oldName, const std::string& name) {
    const std::string condition = " WHERE TallyAccount = " + quoted(gsAccount) + " AND Reference = " + quoted(oldName);
    if (countOf(system_, "SELECT COUNT(*) as RecCount FROM tblGroup_Link" + condition) == 0)
        return;
    if (ask_) {
        apply_ = askYesNo(groupQuestion);
        ask_ = false;
    }
    if (apply_)
        system_.execute("UPDATE tblGroup_Link SET Reference = " + quoted(name) + condition);
}

} // namespace

int reconcileNames(const ReconciledNames& names) {
    const CurrentProcedure procedure(names.procedure);
    return logAndGoOn([&] { Reconciliation(names).run(); }) ? 0 : -1;
}
