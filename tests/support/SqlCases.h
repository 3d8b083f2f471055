#pragma once

#include <ostream>
#include <string>
#include <vector>

/// One case of a text file:
///
///     == what the case shows
///     SELECT Name FROM Areas      the statement, over one or more lines
///     -- rows                     what follows: one row a line, values separated by " | "
///     London
///
/// Behind a statement there stands one of
///     -- rows                     the rows, in order
///     -- any order                the rows, in any order
///     -- count 3                  how many rows it changed
///     -- done                     it runs
///     -- error 3061 at 7          it fails; the position may be left out
/// or another expectation that its test program knows. A case may hold several statements, which run on one database.
/// Null is written null, empty text "". Before a statement there may stand
///     -- columns Name Text(50), Calls Long
///     -- emits SELECT …
///     -- on project               the database on which it runs, as do those behind it in the case (before the first
///                                 case: in the file)
/// Behind the title of a case lines like
///     -- each table=TblTV; key=TVRegion
/// repeat it, with {table} and {key} replaced by these texts.
struct SqlStep {
    std::string statement;
    std::string expectation; ///< "rows", "count 3", "error 3061 at 7" …
    std::vector<std::string> rows;
    std::string columns;
    std::string emits;
    std::string database; ///< empty: the one that the test program has
};

struct SqlCase {
    std::string file;
    std::string name;
    std::vector<SqlStep> steps;
};

/// How a test program names a case in its messages.
inline void PrintTo(const SqlCase& sqlCase, std::ostream* out) {
    *out << sqlCase.file << ": " << sqlCase.name;
}

/// The name of a case among the tests of its program: letters, digits and "_" only.
std::string sqlCaseTestName(const SqlCase& sqlCase, std::size_t index);

/// Every case of every file of the folder. Throws std::runtime_error for a file that cannot be read as cases.
std::vector<SqlCase> readSqlCases(const std::string& folder);
