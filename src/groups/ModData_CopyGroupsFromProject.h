#pragma once

/// Makes the tables in which groups are edited, tblTempGroups and TblTempName, anew from the master copies. `DataType`
/// 0 becomes the kind of areas that is stored for the account, 6 asks the user; an account without any rows is asked
/// about in any case. Returns UserStopped where the user cancels, else 0. Errors are logged and passed over. Main
/// thread.
long ModData_CopyGroupsFromProject(long& DataType);
