#pragma once

#include "core/Caption.h"
#include "groups/UpdateCustomerGroups.h"

#include <string>

/// What Callscope has done to the account's groups, and how it is applied. Main thread.

/// What is known of the account's groups.
struct GroupSetup {
    bool stored = false;  ///< the account has a row in tblMappingGroupSetup
    bool changed = false; ///< by Callscope, and not yet applied
    long DataType = 0;    ///< 0: not known
};

/// Reads gdbSystem and the project; throws DatabaseError.
GroupSetup readGroupSetup();

/// Whether CustomerGroups.mdb is there; tells the user where it is not.
bool customerGroupsExist();
/// Whether the user agrees to apply what Callscope has changed.
bool agreeToChanges();
/// Whether the user agrees to a save, which can take its time.
bool agreeToSave();

/// The places where a save shows itself.
struct GroupStatus {
    const FrameVisibility& frame;
    const Caption& saveStatus;
    const Caption& groupStatus;

    void setVisible(bool visible) const;
};

/// Saves every group that a query of ukmap.mdb names, after asking, with the frame shown. Returns 0, UserStopped, or -1
/// where the save failed. Called under an hourglass, which goes for the question. Throws DatabaseError where the query
/// fails.
long saveChangedGroups(const std::string& namesQuery, long DataType, const GroupStatus& status);
