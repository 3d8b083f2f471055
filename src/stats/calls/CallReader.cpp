#include "stats/calls/CallReader.h"

#include "data/engine/Database.h"
#include "data/types/DatabaseError.h"

#include <sqlite3.h>

#include <cmath>
#include <limits>

namespace {

constexpr std::size_t rowsOfChunk = 16384;
constexpr int dateColumn = 0;
constexpr int moneyColumn = 1;
constexpr int firstText = 2;
constexpr int payphoneColumn = firstText + static_cast<int>(CallChunk::texts);

bool fits(FieldType type, std::size_t column) {
    if (column == dateColumn)
        return type == FieldType::Date;
    return column == moneyColumn ? type == FieldType::Currency : isText(type);
}

/// Checks the table and gives the statement that reads it.
std::string readingStatement(Database& project) {
    const TableDef* table = project.tableDefs().find("TblTeleItem");
    if (!table || table->isAttached())
        throw DatabaseError(3078, "The project has no table 'TblTeleItem' of its own");
    std::string list;
    for (std::size_t i = 0; i < callColumnNames().size(); ++i) {
        const std::string& name = callColumnNames()[i];
        const Field* field = table->findField(name);
        if (!field)
            throw DatabaseError(3265, "The table 'TblTeleItem' has no column '" + name + "'");
        if (!fits(field->type, i))
            throw DatabaseError(3421, "The column '" + name + "' of 'TblTeleItem' is of another type than expected");
        list += (list.empty() ? "" : ", ") + quoteIdentifier(field->name);
    }
    const Field* payphone = table->findField("PayPhone");
    list += payphone && isText(payphone->type) ? ", " + quoteIdentifier(payphone->name) : ", NULL";
    return "SELECT " + list + " FROM " + quoteIdentifier(project.schema()) + ".TblTeleItem";
}

} // namespace

const std::vector<std::string>& callColumnNames() {
    static const std::vector<std::string> names{"CallDate",   "Discounted", "CallTime",  "CalledNo", "AnswerLoc",
                                                "NetAddress", "1141",       "AnswerInd", "CallingNo"};
    return names;
}

void CallChunk::clear() {
    dates.clear();
    money.clear();
    payphones.clear();
    lengths.clear();
    bytes.clear();
}

CallReader::CallReader(Database& project) : rows_(project.connection(), readingStatement(project)) {}

void CallReader::read(CallChunk& chunk) {
    chunk.clear();
    while (!atEnd_ && chunk.rows() < rowsOfChunk) {
        atEnd_ = !rows_.step();
        if (atEnd_)
            break;
        chunk.dates.push_back(date());
        chunk.money.push_back(money());
        chunk.payphones.push_back(isFromPayphone());
        for (std::size_t i = 0; i < CallChunk::texts; ++i)
            readText(chunk, firstText + static_cast<int>(i));
    }
}

void CallReader::readText(CallChunk& chunk, int column) const {
    const int storage = rows_.columnStorage(column);
    if (storage == SQLITE_NULL) {
        chunk.lengths.push_back(CallChunk::null);
        return;
    }
    if (storage != SQLITE_TEXT)
        refuse(column, "is no text");
    const std::string_view text = rows_.text(column);
    if (text.size() >= CallChunk::null)
        refuse(column, "is too long");
    chunk.lengths.push_back(static_cast<std::uint16_t>(text.size()));
    chunk.bytes.append(text);
}

bool CallReader::isFromPayphone() const {
    if (rows_.columnStorage(payphoneColumn) != SQLITE_TEXT)
        return false;
    const std::string_view text = rows_.text(payphoneColumn);
    return !text.empty() && (text.front() == 'P' || text.front() == 'p') && equalText(text, "P");
}

double CallReader::date() const {
    const int storage = rows_.columnStorage(dateColumn);
    if (storage == SQLITE_NULL)
        return std::numeric_limits<double>::quiet_NaN();
    if (storage != SQLITE_FLOAT && storage != SQLITE_INTEGER)
        refuse(dateColumn, "is no date");
    return rows_.real(dateColumn) + 0.0; // a negative zero is the same day
}

/// Sums of ten-thousandths are those of the statements only where every value is a whole number of them.
std::int32_t CallReader::money() const {
    const int storage = rows_.columnStorage(moneyColumn);
    if (storage == SQLITE_NULL)
        return 0;
    if (storage != SQLITE_FLOAT && storage != SQLITE_INTEGER)
        refuse(moneyColumn, "is no money");
    const double pounds = rows_.real(moneyColumn);
    const double whole = std::nearbyint(pounds * 10000.0);
    if (!(std::abs(whole) <= std::numeric_limits<std::int32_t>::max()) || whole / 10000.0 != pounds)
        refuse(moneyColumn, "is no money of four decimals and this size");
    return static_cast<std::int32_t>(whole);
}

void CallReader::refuse(int column, const std::string& what) const {
    throw DatabaseError(3421, "A value of the column '" + callColumnNames()[static_cast<std::size_t>(column)] +
                                  "' of 'TblTeleItem' " + what + ": '" + std::string(rows_.text(column)) + "'");
}
