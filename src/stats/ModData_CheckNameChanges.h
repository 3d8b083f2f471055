#pragma once

/// Brings the area names of the open project and those of the map to one name, where they have come apart between two
/// releases of the geography. A name that the map already has is put right in TblLookup1141 alone; else the map's old
/// name is replaced by the project's in shapes, labels, lookup and statistics, and, when the user agrees, in the
/// customer groups of the account. The question comes at most once in a run.
///
/// An error is logged and ends the procedure; renames already made stay. Needs gdbSystem with its links, and gsAccount.
void ModData_CheckTVNameChanges();
