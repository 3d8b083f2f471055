#include "tests/data/jet/JetFixture.h"

#include "data/jet/Functions.h"
#include "data/types/DatabaseError.h"

#include <sqlite3.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace {

int compareJet(void*, int lengthA, const void* a, int lengthB, const void* b) {
    return compareText({static_cast<const char*>(a), static_cast<std::size_t>(lengthA)},
                       {static_cast<const char*>(b), static_cast<std::size_t>(lengthB)});
}

[[noreturn]] void raise(sqlite3* connection, const std::string& sql) {
    const std::string words = sqlite3_errmsg(connection);
    if (words.starts_with("jet:"))
        throw DatabaseError(std::strtol(words.c_str() + 4, nullptr, 10), words.substr(words.find(':', 4) + 1));
    if ((sqlite3_errcode(connection) & 0xFF) == SQLITE_CONSTRAINT)
        throw DatabaseError(3022, words);
    if (words == "integer overflow")
        throw DatabaseError(6, words);
    throw std::runtime_error("the storage library refused: " + words + "\n" + sql);
}

class Rows {
public:
    Rows(sqlite3* connection, const std::string& sql) : connection_(connection), sql_(sql) {
        const char* rest = nullptr;
        if (sqlite3_prepare_v2(connection, sql.c_str(), -1, &statement_, &rest) != SQLITE_OK)
            raise(connection, sql);
        if (rest && *rest)
            throw std::logic_error("more than one statement: " + sql);
    }
    ~Rows() { sqlite3_finalize(statement_); }
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;

    bool next() {
        const int code = sqlite3_step(statement_);
        if (code != SQLITE_ROW && code != SQLITE_DONE)
            raise(connection_, sql_);
        return code == SQLITE_ROW;
    }
    std::string text(int column) const {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
        return text ? text : "";
    }
    Value value(int column, std::optional<FieldType> type) const {
        switch (sqlite3_column_type(statement_, column)) {
        case SQLITE_NULL:
            return {};
        case SQLITE_TEXT:
            return text(column);
        case SQLITE_BLOB:
            return Bytes(static_cast<std::size_t>(sqlite3_column_bytes(statement_, column)));
        default:
            break;
        }
        const double number = sqlite3_column_double(statement_, column);
        if (!std::isfinite(number))
            throw DatabaseError(6, "Overflow");
        if (type == FieldType::Date)
            return Date{number};
        if (type == FieldType::Boolean)
            return number != 0.0;
        if (type == FieldType::Currency)
            return Money::fromDouble(number);
        if (sqlite3_column_type(statement_, column) == SQLITE_INTEGER)
            return std::int64_t{sqlite3_column_int64(statement_, column)};
        return number;
    }

private:
    sqlite3* connection_;
    std::string sql_;
    sqlite3_stmt* statement_ = nullptr;
};

} // namespace

JetFixture::JetFixture() {
    sqlite3_open(":memory:", &connection_);
    sqlite3_create_collation_v2(connection_, "JET", SQLITE_UTF8, nullptr, compareJet, nullptr);
    jet::registerFunctions(connection_);
    executePlain("ATTACH ':memory:' AS other");
}

JetFixture::~JetFixture() {
    sqlite3_close(connection_);
}

JetFixture::Result JetFixture::run(const std::string& statement) {
    Result result;
    result.program = jet::translate(statement, *this);
    if (result.program.isQuery) {
        result.columns = result.program.columns;
        result.rows = queryPlain(result.program.query, result.columns);
        return result;
    }
    executePlain("SAVEPOINT whole");
    try {
        for (const jet::Step& step : result.program.steps) {
            if (step.kind == jet::Step::Kind::DropLink) {
                links_.erase(foldText(step.sql));
                continue;
            }
            executePlain(step.sql);
            if (step.kind == jet::Step::Kind::Count)
                result.affected += sqlite3_changes(connection_);
        }
    } catch (...) {
        executePlain("ROLLBACK TO whole");
        executePlain("RELEASE whole");
        throw;
    }
    executePlain("RELEASE whole");
    return result;
}

void JetFixture::runFile(const std::string& path) {
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    std::string line;
    while (std::getline(file, line)) {
        if (!line.empty() && !line.starts_with("--"))
            run(line);
    }
}

void JetFixture::executePlain(const std::string& sql) {
    Rows rows(connection_, sql);
    while (rows.next()) {
    }
}

std::vector<std::vector<Value>> JetFixture::queryPlain(const std::string& sql,
                                                       const std::vector<jet::ResultColumn>& columns) {
    std::vector<std::vector<Value>> result;
    Rows rows(connection_, sql);
    while (rows.next()) {
        std::vector<Value> row;
        for (std::size_t i = 0; i < columns.size(); ++i)
            row.push_back(rows.value(static_cast<int>(i), columns[i].type));
        result.push_back(std::move(row));
    }
    return result;
}

void JetFixture::addLink(const std::string& name, const std::string& target) {
    links_[foldText(name)] = target;
}

std::optional<jet::Table> JetFixture::find(const std::string& schema, std::string_view name) {
    jet::Table table;
    table.schema = schema;
    {
        Rows rows(connection_, "SELECT name, type FROM " + schema +
                                   ".sqlite_schema WHERE type IN ('table', 'view') AND upper(name) = " +
                                   quoteLiteral(foldText(name)));
        if (!rows.next())
            return std::nullopt;
        table.name = rows.text(0);
        table.isView = rows.text(1) == "view";
    }
    Rows columns(connection_, "SELECT name, type, \"notnull\", dflt_value FROM pragma_table_info(" +
                                  quoteLiteral(table.name) + ", " + quoteLiteral(schema) + ")");
    while (columns.next()) {
        const auto field = fieldOfDeclaredType(columns.text(1));
        table.columns.push_back(field.value_or(Field{}));
        table.columns.back().name = columns.text(0);
        table.columns.back().required = columns.text(2) == "1";
        const std::string byDefault = columns.text(3);
        const bool givenByType = table.columns.back().type == FieldType::Boolean && byDefault == "0";
        if (!byDefault.empty() && !givenByType)
            table.columns.back().defaultValue = byDefault;
    }
    return table;
}

std::optional<jet::Table> JetFixture::findTable(std::string_view name) {
    const auto link = links_.find(foldText(name));
    if (link == links_.end())
        return find("main", name);
    if (link->second.empty())
        throw DatabaseError(3024, "Could not find the file of " + std::string(name));
    auto table = find("main", link->second);
    table->link = std::string(name);
    return table;
}

std::optional<jet::Table> JetFixture::findTableIn(std::string_view path, std::string_view name) {
    return find(schemaOf(path), name);
}

std::string JetFixture::schemaOf(std::string_view path) {
    if (!equalText(path, "C:\\Other.mdb"))
        throw DatabaseError(3024, "Could not find the file " + std::string(path));
    return "other";
}

bool JetFixture::isLink(std::string_view name) {
    return links_.contains(foldText(name));
}

std::vector<jet::Index> JetFixture::indexesOf(const jet::Table& table) {
    std::vector<jet::Index> indexes;
    const std::string schema = quoteLiteral(table.schema);
    Rows list(connection_,
              "SELECT name, \"unique\" FROM pragma_index_list(" + quoteLiteral(table.name) + ", " + schema + ")");
    while (list.next()) {
        jet::Index index;
        index.name = list.text(0);
        index.unique = list.text(1) == "1";
        Rows keys(connection_, "SELECT name, \"desc\" FROM pragma_index_xinfo(" + quoteLiteral(index.name) + ", " +
                                   schema + ") WHERE \"key\" = 1");
        while (keys.next())
            index.columns.push_back({keys.text(0), keys.text(1) == "1"});
        indexes.push_back(std::move(index));
    }
    return indexes;
}
