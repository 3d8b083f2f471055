#include "groups/editor/AreaChange.h"

#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "groups/ChangedGroups.h"

#include <utility>

namespace {

bool run(const std::string& statement) {
    return onSystemDatabase([&] { systemDatabase().execute(statement); });
}

bool insertMember(const std::string& area, const std::string& group) {
    return run("INSERT INTO tblTempGroups (TallyAccount, Reference, GroupName) VALUES (" + ::quoted(gsAccount) + ", " +
               ::quoted(area) + ", " + ::quoted(group) + ")");
}

bool updateMember(const std::string& area, const std::string& group) {
    return run("UPDATE tblTempGroups SET GroupName = " + ::quoted(group) + " WHERE Reference = " + ::quoted(area));
}

bool replaceMember(const std::string& area, const std::string& group) {
    return run("DELETE FROM tblTempGroups WHERE Reference = " + ::quoted(area)) && insertMember(area, group);
}

} // namespace

AreaChange::AreaChange(GroupAction action, std::string group, MembershipQuery query)
    : action_(action), group_(std::move(group)), query_(std::move(query)) {}

AreaChange::Result AreaChange::change(const std::string& area) {
    const auto membership = membershipOf(area);
    if (!membership)
        return Result::Failed;
    const bool adding = action_ == GroupAction::Add;
    const bool inGroup = equalText(membership->group, group_);
    if (membership->exists && (adding ? inGroup : membership->group.empty()))
        return Result::Unchanged;
    if (membership->group.empty() || inGroup)
        return move(area, *membership);
    if (!mayOverride(area, membership->group))
        return Result::Unchanged;
    const auto changedBefore = ChangedGroups;
    AddChangedGroup(membership->group);
    const Result result = move(area, *membership);
    if (result == Result::Failed)
        ChangedGroups = changedBefore;
    return result;
}

/// Nothing where it could not be read.
std::optional<AreaChange::Membership> AreaChange::membershipOf(const std::string& area) const {
    Membership membership;
    const bool read = onSystemDatabase([&] {
        const auto row =
            systemDatabase().openRecordset("SELECT * FROM tblTempGroups WHERE Reference = " + ::quoted(area));
        membership = {};
        membership.exists = !row->EOF_();
        if (!membership.exists)
            return;
        membership.null = row->value("GroupName").isNull();
        membership.group = trimmedText(row->value("GroupName").asText());
    });
    return read ? std::optional(membership) : std::nullopt;
}

bool AreaChange::mayOverride(const std::string& area, const std::string& group) {
    if (answer_ != MembershipAnswer::YesToAll && answer_ != MembershipAnswer::NoToAll)
        answer_ = query_ ? query_(area, group, action_ == GroupAction::Add) : MembershipAnswer::No;
    return answer_ == MembershipAnswer::Yes || answer_ == MembershipAnswer::YesToAll;
}

AreaChange::Result AreaChange::move(const std::string& area, const Membership& from) {
    const std::string group = action_ == GroupAction::Add ? group_ : std::string();
    const bool written = !from.exists ? insertMember(area, group)
                         : from.null  ? replaceMember(area, group)
                                      : updateMember(area, group);
    return written ? Result::Changed : Result::Failed;
}
