#pragma once

/// Removes every group of the account at once, without a save: names and members that are being edited, shapes, labels
/// and figures in ukmap.mdb, and the master copies. The project keeps its members until the next save. Returns 0, or -1
/// where the master copies could not be reached, which is logged; statements that fail are logged and passed over. Main
/// thread.
int DeleteAllGroups(long DataType);
