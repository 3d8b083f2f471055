#include "data/sqlite/Connection.h"

#include <sqlite3.h>

#include <utility>

namespace sqlite {

Statement::Statement(Connection& connection, std::string_view sql) : connection_(connection.handle()) {
    const int code = sqlite3_prepare_v2(connection_, sql.data(), static_cast<int>(sql.size()), &handle_, nullptr);
    if (code != SQLITE_OK)
        raise(connection_, code);
    if (sqlite3_stmt_readonly(handle_) == 0) {
        try {
            connection.refuseWhereTransactionLost();
        } catch (...) {
            sqlite3_finalize(handle_);
            throw;
        }
    }
}

Statement::~Statement() {
    sqlite3_finalize(handle_);
}

Statement::Statement(Statement&& other) noexcept
    : connection_(other.connection_), handle_(std::exchange(other.handle_, nullptr)) {}

bool Statement::step() {
    const int code = sqlite3_step(handle_);
    if (code == SQLITE_ROW)
        return true;
    if (code != SQLITE_DONE)
        raise(connection_, code);
    return false;
}

void Statement::reset() {
    sqlite3_reset(handle_); // its code repeats that of the last step(), which has been thrown
}

namespace {
void check(sqlite3* connection, int code) {
    if (code != SQLITE_OK)
        raise(connection, code);
}
} // namespace

void Statement::bindNull(int parameter) {
    check(connection_, sqlite3_bind_null(handle_, parameter));
}
void Statement::bind(int parameter, std::int64_t value) {
    check(connection_, sqlite3_bind_int64(handle_, parameter, value));
}
void Statement::bind(int parameter, double value) {
    check(connection_, sqlite3_bind_double(handle_, parameter, value));
}
void Statement::bind(int parameter, std::string_view text) {
    check(connection_, sqlite3_bind_text64(handle_, parameter, text.data() ? text.data() : "", text.size(),
                                           SQLITE_TRANSIENT, SQLITE_UTF8));
}
void Statement::bindStatic(int parameter, std::string_view text) {
    check(connection_, sqlite3_bind_text64(handle_, parameter, text.data() ? text.data() : "", text.size(),
                                           SQLITE_STATIC, SQLITE_UTF8));
}
void Statement::bind(int parameter, std::span<const std::byte> bytes) {
    if (bytes.empty())
        check(connection_, sqlite3_bind_zeroblob(handle_, parameter, 0));
    else
        check(connection_, sqlite3_bind_blob64(handle_, parameter, bytes.data(), bytes.size(), SQLITE_TRANSIENT));
}

int Statement::columnCount() const {
    return sqlite3_column_count(handle_);
}
std::string Statement::columnName(int column) const {
    const char* name = sqlite3_column_name(handle_, column);
    return name ? name : "";
}
int Statement::columnStorage(int column) const {
    return sqlite3_column_type(handle_, column);
}
bool Statement::isNull(int column) const {
    return columnStorage(column) == SQLITE_NULL;
}
std::int64_t Statement::integer(int column) const {
    return sqlite3_column_int64(handle_, column);
}
double Statement::real(int column) const {
    return sqlite3_column_double(handle_, column);
}

std::string_view Statement::text(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle_, column));
    if (!text && sqlite3_errcode(connection_) == SQLITE_NOMEM)
        raise(connection_, SQLITE_NOMEM); // not an empty text
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(handle_, column)))
                : std::string_view();
}

std::span<const std::byte> Statement::bytes(int column) const {
    const auto* data = static_cast<const std::byte*>(sqlite3_column_blob(handle_, column));
    if (!data && sqlite3_errcode(connection_) == SQLITE_NOMEM)
        raise(connection_, SQLITE_NOMEM);
    return {data, static_cast<std::size_t>(sqlite3_column_bytes(handle_, column))};
}

} // namespace sqlite
