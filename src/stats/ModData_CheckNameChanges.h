#pragma once

/// Bring the area names of the open project and those of the map to one name, where they have come apart between two
/// releases of the geography: of TV regions, exchanges, postcode districts. A name that the map already has is put
/// right in TblLookup1141 alone; else the map's old name is replaced by the project's in shapes, labels, lookup and
/// statistics, and, when the user agrees, in the customer groups of the account. The question comes at most once in a
/// run. Exchanges are in no groups, have no statistics renamed, and the lookup of theirs is renamed for the one code
/// that the old name was found by.
///
/// An error is logged and ends the procedure, which then gives -1 instead of 0; renames already made stay. They need
/// gdbSystem with its links, and gsAccount.
int ModData_CheckTVNameChanges();
int ModData_CheckExchangeNameChanges();
int ModData_CheckPostCodeNameChanges();
