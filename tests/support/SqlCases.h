#pragma once

#include <ostream>
#include <string>
#include <vector>

/// One case of a text file under tests/sql:
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
/// and before it, optionally, `-- columns Name Text(50), Calls Long` and `-- emits …`. A case may hold several
/// statements, which run on one database. Null is written null, empty text "".
struct SqlStep {
    std::string statement;
    std::string expectation; ///< "rows", "count 3", "error 3061 at 7" …
    std::vector<std::string> rows;
    std::string columns;
    std::string emits;
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

/// Every case of every file of the folder. Throws std::runtime_error for a file that cannot be read as cases.
std::vector<SqlCase> readSqlCases(const std::string& folder);
