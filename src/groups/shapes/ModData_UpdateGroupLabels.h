#pragma once

/// Rebuilds PNT_GROUPS of gdbSystem for the account of the project: each group's label stands on the member whose
/// centre is nearest to the group's middle height. DataType says what the members are: 2 TV regions, 1 CSGs, else
/// postcode districts. Yields after each group. Errors are logged and passed over. Main thread.
void ModData_UpdateGroupLabels(long DataType);
