#pragma once

#include "core/Caption.h"
#include "groups/UpdateCustomerGroups.h"

/// The way into the group tools: applies what Callscope has changed, after asking, and makes the tables in which groups
/// are edited. Returns 0 when frmGroups can be shown on `DataType`, UserStopped where the user stopped or there is
/// nothing to edit, of which he has been told, or -1 where the save of the changes failed. The frame is hidden at the
/// end. What the map window shows is to be cleared by the caller. Main thread.
long OpenGroupTools(const FrameVisibility& Frame, const Caption& SaveStatusLabel, const Caption& GroupStatusLabel,
                    long& DataType);
