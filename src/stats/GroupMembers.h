#pragma once

#include <string>

/// The members of a group of the project's account as a condition, " AND CalledNo In ('…','…')", or nothing where the
/// group has none. "Not Allocated" stands for everything in no group. A project without an account gets a message and
/// no condition. Errors are logged; the condition is then empty. Names stand in the condition as they are.

/// Inbound numbers of a community group; a number belongs to up to three. More than 1500 get a message, set
/// GroupLimitExceeded and give no condition. Writes SelectionDescription.
std::string ModUtilities_getnumbersforcg(const std::string& groupName);

/// Answer points of an answer point group, however many.
std::string ModUtilities_getAnswerPointsForGroup(const std::string& groupName);
