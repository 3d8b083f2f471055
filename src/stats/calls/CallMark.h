#pragma once

#include <string>

class Database;

/// A mark in the project file that goes as soon as a row of TblTeleItem is added, changed or removed, by whatever
/// program: triggers on the table wipe it out. So it can be told at any time, without reading the calls, that they are
/// those which were there when the mark was made. The number of rows and the highest row number would not notice a
/// change in place, a sum over all rows takes longer than loading the columns, and the change counter of the file also
/// counts the tables that every run of the statistics leaves behind.
///
/// The mark is undone with the transaction that made it, and back with the one that wiped it out.

/// Makes a new mark. Throws DatabaseError where the file cannot be changed or has no table TblTeleItem of its own.
void makeCallMark(Database& project);

/// What tells the present mark from all others, the definition of the table with it; empty where there is none.
std::string callMark(Database& project);

void removeCallMark(Database& project);
