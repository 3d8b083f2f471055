#include "data/sqlite/Connection.h"

#include "data/jet/Functions.h"
#include "data/types/DatabaseError.h"
#include "data/types/Value.h"

#include <sqlite3.h>

namespace sqlite {

namespace {

int compareJet(void*, int lengthA, const void* a, int lengthB, const void* b) {
    return compareText({static_cast<const char*>(a), static_cast<std::size_t>(lengthA)},
                       {static_cast<const char*>(b), static_cast<std::size_t>(lengthB)});
}

/// Bloom filters of joins hash text by its bytes, which loses rows under a collation that ignores case and blanks.
void switchOffJoinFilters(sqlite3* connection) {
    constexpr int bloomFilter = 0x00080000;
    sqlite3_test_control(SQLITE_TESTCTRL_OPTIMIZATIONS, connection, bloomFilter);
}

/// Bytes of the longest text, bytes value or row; far above any shape, far below what takes the memory away.
constexpr int longestValue = 100'000'000;

/// How long a statement waits for another process to let go of a file.
constexpr int busyMilliseconds = 2000;

} // namespace

Connection::Connection() {
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
    int code = sqlite3_open_v2(":memory:", &handle_, flags, nullptr);
    if (code == SQLITE_OK)
        code = sqlite3_create_collation_v2(handle_, "JET", SQLITE_UTF8, nullptr, compareJet, nullptr);
    if (code != SQLITE_OK) {
        sqlite3_close(handle_);
        throw std::bad_alloc();
    }
    sqlite3_extended_result_codes(handle_, 1);
    sqlite3_busy_timeout(handle_, busyMilliseconds);
    sqlite3_limit(handle_, SQLITE_LIMIT_LENGTH, longestValue);
    // A column can be dropped although a view of the file shows what is no longer there.
    sqlite3_db_config(handle_, SQLITE_DBCONFIG_LEGACY_ALTER_TABLE, 1, nullptr);
    switchOffJoinFilters(handle_);
    try {
        jet::registerFunctions(handle_);
    } catch (...) {
        sqlite3_close(handle_);
        throw;
    }
}

Connection::~Connection() {
    sqlite3_close_v2(handle_);
}

void Connection::execute(const std::string& sql) {
    refuseWhereTransactionLost();
    const int code = sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        raise(handle_, code);
}

std::int64_t Connection::changes() const {
    return sqlite3_changes64(handle_);
}
std::int64_t Connection::lastInsertRowid() const {
    return sqlite3_last_insert_rowid(handle_);
}
bool Connection::inTransaction() const {
    return sqlite3_get_autocommit(handle_) == 0;
}

void Connection::refuseWhereTransactionLost() const {
    if (expectsTransaction_ && !inTransaction())
        throw DatabaseError(3034, "The transaction was undone after a fault of the disk; nothing of it is stored");
}
bool Connection::hasChanged(const std::string& schema) const {
    return sqlite3_txn_state(handle_, schema.c_str()) == SQLITE_TXN_WRITE;
}

Savepoint::Savepoint(Connection& connection) : connection_(connection) {
    connection_.execute("SAVEPOINT step");
}

Savepoint::~Savepoint() {
    if (!open_)
        return;
    // A fault such as a full disk may have ended the whole transaction already.
    if (sqlite3_get_autocommit(connection_.handle()) != 0)
        return;
    // Where even this fails, all must go, so that nothing half done is stored later and the file is not kept locked.
    if (sqlite3_exec(connection_.handle(), "ROLLBACK TO step; RELEASE step", nullptr, nullptr, nullptr) != SQLITE_OK)
        sqlite3_exec(connection_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Savepoint::release() {
    connection_.execute("RELEASE step");
    open_ = false;
}

} // namespace sqlite
