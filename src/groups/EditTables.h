#pragma once

#include <optional>

/// The tables in which groups are edited, tblTempGroups and TblTempName of ukmap.mdb, and the kind of areas of which
/// groups are made (DataType). Main thread.

enum class Ireland { LeftOut, Kept };

/// Makes the tables anew from the master copies. A statement that fails is logged and passed over.
void makeEditTables(Ireland ireland);

/// 1 CSGs, 2 TV regions, 3 postcode districts.
bool isGroupType(long DataType);
/// Asks the user for one of them; nothing where he cancels.
std::optional<long> askForGroupType();
/// As stored for the account; nothing where none is. Errors are logged.
std::optional<long> storedGroupType();
