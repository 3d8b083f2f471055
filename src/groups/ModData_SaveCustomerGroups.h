#pragma once

#include "core/Caption.h"

/// Saves the groups as they were edited in tblTempGroups and TblTempName: merges the shapes of the groups named in
/// ChangedGroups, places the labels, rewrites the master copies in CustomerGroups.mdb and the project's copy, and
/// counts the groups' calls anew. `DataType` says what the groups are made of: 3 postcode districts, 1 CSGs, else TV
/// regions; it becomes 0 where no group is left. Returns 0, or -1 where a statement failed: the error is logged and the
/// tables are left as far as it came. A crash leaves each file with the old groups or with the new ones.
///
/// Yields around every merge; the captions may be absent, as may `UnsavedFlag`, which becomes false on success. Main
/// thread.
int ModData_SaveCustomerGroups(long& DataType, const Caption& SaveStatusLabel, const Caption& GroupStatusLabel,
                               bool* UnsavedFlag);
