#pragma once

#include <functional>
#include <string>
#include <vector>

/// Brings TblProjectInfo.MappingVersion of gdbProject up to the highest Version of the system map database. A project
/// from before version 1.1 holds its special groups (those of mobile, international, VOIP and other callers) in an old
/// form; they are handed to the group upgrade first. Failures are logged and passed over.
void UpdateMappingVersion();

/// The special groups of the account gsAccount as an old project holds them.
struct SpecialGroups {
    std::vector<std::string> names; ///< never empty
    long dataType = 0;              ///< kind of area of the account's groups; 0 where none is set
};

/// What saves such groups in their present form: the group store, which lies above this room. Until one is set the
/// upgrade is left out with a line in the log. Pass an empty function to return to that.
using SpecialGroupUpgrade = std::function<void(const SpecialGroups& groups)>;
void setSpecialGroupUpgrade(SpecialGroupUpgrade upgrade);
