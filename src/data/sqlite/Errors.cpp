#include "data/sqlite/Connection.h"
#include "data/types/DatabaseError.h"

#include <sqlite3.h>

namespace sqlite {

namespace {

struct Fault {
    long number;
    std::string words;
};

Fault constraintFault(int code, const std::string& words) {
    switch (code) {
    case SQLITE_CONSTRAINT_NOTNULL:
        return {3314, "A required field is null (" + words + ")"};
    case SQLITE_CONSTRAINT_CHECK:
        return {3315, "A field cannot be a zero-length string (" + words + ")"};
    default:
        return {3022, "The change would create duplicate values (" + words + ")"};
    }
}

Fault faultOf(int code, const std::string& words) {
    switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {3356, "The file is in use by another process"};
    case SQLITE_CORRUPT:
        return {3049, "The database file is damaged"};
    case SQLITE_NOTADB:
        return {3343, "Unrecognized database format"};
    case SQLITE_READONLY:
        return {3027, "The database or its folder is read-only"};
    case SQLITE_FULL:
        return {3183, "There is not enough space on the disk"};
    case SQLITE_IOERR:
        return {3043, "Disk or network error (" + words + ")"};
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
        return {3051, "The file cannot be opened (" + words + ")"};
    case SQLITE_CONSTRAINT:
        return constraintFault(code, words);
    case SQLITE_NOMEM:
        return {7, "Out of memory"};
    case SQLITE_TOOBIG:
        return {3035, "A value or statement is too long"};
    default:
        break;
    }
    if (words == "integer overflow")
        return {6, "Overflow"};
    if (words.starts_with("too many columns"))
        return {3190, "Too many fields defined"};
    if (words.starts_with("too many terms"))
        return {3360, "The statement is too complex"};
    return {UnclassifiedFault, words};
}

} // namespace

void raise(sqlite3* connection, int code, std::string_view context) {
    const std::string words = connection ? sqlite3_errmsg(connection) : sqlite3_errstr(code);
    Fault fault = faultOf(connection ? sqlite3_extended_errcode(connection) : code, words);
    if ((code & 0xFF) == SQLITE_ERROR &&
        words.starts_with("jet:")) { // an error of the dialect's functions, with its number
        const std::size_t colon = words.find(':', 4);
        if (colon != std::string::npos)
            fault = {std::strtol(words.c_str() + 4, nullptr, 10), words.substr(colon + 1)};
    }
    if (!context.empty())
        fault.words = std::string(context) + ": " + fault.words;
    throw DatabaseError(fault.number, fault.words);
}

} // namespace sqlite
