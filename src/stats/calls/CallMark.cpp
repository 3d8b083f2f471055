#include "stats/calls/CallMark.h"

#include "data/engine/Database.h"
#include "data/sqlite/Connection.h"
#include "stats/calls/ByteStream.h"

#include <array>

namespace {

constexpr std::array<const char*, 3> changes{"INSERT", "UPDATE", "DELETE"};

std::string schemaOf(const Database& project) {
    return quoteIdentifier(project.schema()) + ".";
}

std::string triggerName(const Database& project, const char* change) {
    return schemaOf(project) + "MSysCallMark" + change;
}

} // namespace

void makeCallMark(Database& project) {
    sqlite::Connection& connection = project.connection();
    sqlite::Savepoint whole(connection);
    removeCallMark(project);
    connection.execute("CREATE TABLE " + schemaOf(project) + "MSysCallMark(Mark INTEGER)");
    connection.execute("INSERT INTO " + schemaOf(project) + "MSysCallMark VALUES(random())");
    for (const char* change : changes)
        connection.execute("CREATE TRIGGER " + triggerName(project, change) + " AFTER " + change +
                           " ON TblTeleItem WHEN EXISTS (SELECT 1 FROM MSysCallMark) BEGIN DELETE FROM MSysCallMark; "
                           "END");
    whole.release();
}

std::string callMark(Database& project) {
    const std::string schema = schemaOf(project);
    sqlite::Statement parts(project.connection(),
                            "SELECT count(*) FILTER (WHERE type = 'table'), count(*) FILTER (WHERE type = 'trigger') "
                            "FROM " +
                                schema +
                                "sqlite_schema WHERE name LIKE 'MSysCallMark%' AND (type = 'table' OR tbl_name = "
                                "'TblTeleItem' COLLATE NOCASE)");
    parts.step();
    if (parts.integer(0) != 1 || parts.integer(1) != static_cast<std::int64_t>(changes.size()))
        return {};
    sqlite::Statement mark(project.connection(), "SELECT Mark, (SELECT sql FROM " + schema +
                                                     "sqlite_schema WHERE type = 'table' AND name = 'TblTeleItem' "
                                                     "COLLATE NOCASE) FROM " +
                                                     schema + "MSysCallMark");
    if (!mark.step())
        return {};
    ByteWriter bytes;
    bytes.number(mark.integer(0));
    bytes.text(mark.text(1));
    return bytes.bytes();
}

void removeCallMark(Database& project) {
    for (const char* change : changes)
        project.connection().execute("DROP TRIGGER IF EXISTS " + triggerName(project, change));
    project.connection().execute("DROP TABLE IF EXISTS " + schemaOf(project) + "MSysCallMark");
}
