#pragma once

#include "core/Caption.h"

#include <functional>

/// The frame in which a save shows its two captions. An empty function stands for a frame that is not there.
using FrameVisibility = std::function<void(bool visible)>;

/// Apply what Callscope has changed in the groups of the account, after asking, and make the tables in which they are
/// edited anew. Return 0, UserStopped where the user stopped or there is nothing to update, or -1 where the save
/// failed. One runs from the map window, the other from the main window. Main thread.
long ModData_UpdateCustomerGroups(const FrameVisibility& Frame, const Caption& SaveStatusLabel,
                                  const Caption& GroupStatusLabel);
void FrmMain_UpdateCustomerGroups(long& Result, const FrameVisibility& Frame = {}, const Caption& SaveStatusLabel = {},
                                  const Caption& GroupStatusLabel = {});

/// More groups than the map can show exist for the account; tells the user so. Reads CustomerGroups.mdb; throws
/// DatabaseError.
bool tooManyGroups();
