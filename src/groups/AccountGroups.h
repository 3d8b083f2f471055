#pragma once

/// Whether any area of the project's account is in a customer group. Reads TblGroup_Link of gdbSystem; throws
/// DatabaseError.
bool accountHasGroups();
