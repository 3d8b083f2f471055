#pragma once

#include "groups/editor/MembershipQuery.h"

#include <optional>
#include <string>

/// Puts areas into one group, or takes them out of their groups, in tblTempGroups. The answer of the last question is
/// kept: an answer to all holds for the areas that follow. Statements that fail are logged. Main thread.
class AreaChange {
public:
    enum class Result { Unchanged, Changed, Failed };

    AreaChange(GroupAction action, std::string group, MembershipQuery query);

    /// Asks where the area is in another group, which then counts as changed.
    Result change(const std::string& area);

private:
    struct Membership {
        bool exists = false; ///< the area has a row
        bool null = false;   ///< whose group is null
        std::string group;   ///< empty: in none
    };

    std::optional<Membership> membershipOf(const std::string& area) const;
    bool mayOverride(const std::string& area, const std::string& group);
    Result move(const std::string& area, const Membership& from);

    GroupAction action_;
    std::string group_;
    MembershipQuery query_;
    MembershipAnswer answer_ = MembershipAnswer::None;
};
