#pragma once

#include <functional>
#include <string>

/// What the menu of the group tools does with an area.
enum class GroupAction { Add = 1, Remove = 2 };

/// The answers of frmGroupSaveQuery. A window that is closed otherwise answers No.
enum class MembershipAnswer { None = 0, Yes = 1, YesToAll = 2, No = 3, NoToAll = 4 };

/// Asks about an area that belongs to another group than the selected one (frmGroupSaveQuery_QueryUser): `Reference` is
/// the area, `GroupName` the group that it is in.
using MembershipQuery =
    std::function<MembershipAnswer(const std::string& Reference, const std::string& GroupName, bool Adding)>;

/// How that question reads.
std::string membershipQuestion(const std::string& Reference, const std::string& GroupName, bool Adding);
