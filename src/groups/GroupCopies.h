#pragma once

/// Carry what was saved in ukmap.mdb to the other copies. Both return 0, or -1 on failure, which is logged; what was
/// there is then left. Main thread.

/// The account's shapes and label points to the master copies in CustomerGroups.mdb.
int ModData_TransferGroupsToCustomerDB();

/// The account's members from the master copy to the project, and the kind of areas to where Callscope reads it.
int ModData_CopyGroupsToProject(long DataType);
