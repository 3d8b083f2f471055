#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

/// A thin owner layer over the storage library: constructor opens or prepares, destructor closes or finalises; failures
/// are exceptions. One thread at a time.
namespace sqlite {

/// The number of a fault for which the dialect knows no better one, such as a table that went between two statements.
constexpr long UnclassifiedFault = 3000;

/// Throws DatabaseError for a result code of the library, with its words. `context` stands in front of them.
[[noreturn]] void raise(sqlite3* connection, int code, std::string_view context = {});

class Connection {
public:
    /// An empty in-memory main database, with collation JET and the dialect's functions, tuned for large scans.
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Runs one or more statements without results.
    void execute(const std::string& sql);
    std::int64_t changes() const;
    std::int64_t lastInsertRowid() const;
    bool inTransaction() const;
    /// Whether a transaction is thought to be open. Where the library has undone it after a fault of the disk, every
    /// further change throws 3034, so that none is stored without those before it.
    void expectTransaction(bool expected) { expectsTransaction_ = expected; }
    void refuseWhereTransactionLost() const;
    /// Whether the open transaction has changed the file attached as `schema`.
    bool hasChanged(const std::string& schema) const;
    sqlite3* handle() const { return handle_; }

private:
    sqlite3* handle_ = nullptr;
    bool expectsTransaction_ = false;
};

/// One prepared statement. Column and parameter positions: columns from 0, parameters from 1, as the library counts.
class Statement {
public:
    Statement(Connection& connection, std::string_view sql);
    ~Statement();
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&&) = delete;

    /// True while there is a row.
    bool step();
    void reset();

    void bindNull(int parameter);
    void bind(int parameter, std::int64_t value);
    void bind(int parameter, double value);
    void bind(int parameter, std::string_view text);            ///< copied
    void bindStatic(int parameter, std::string_view text);      ///< must outlive the next step()
    void bind(int parameter, std::span<const std::byte> bytes); ///< copied

    int columnCount() const;
    std::string columnName(int column) const;
    int columnStorage(int column) const; ///< SQLITE_NULL, SQLITE_INTEGER, …
    bool isNull(int column) const;
    std::int64_t integer(int column) const;
    double real(int column) const;
    std::string_view text(int column) const;            ///< until the next step
    std::span<const std::byte> bytes(int column) const; ///< until the next step
    sqlite3_stmt* handle() const { return handle_; }

private:
    sqlite3* connection_ = nullptr;
    sqlite3_stmt* handle_ = nullptr;
};

/// A savepoint that is rolled back unless released. Does not throw from its destructor.
class Savepoint {
public:
    explicit Savepoint(Connection& connection);
    ~Savepoint();
    Savepoint(const Savepoint&) = delete;
    Savepoint& operator=(const Savepoint&) = delete;
    void release();

private:
    Connection& connection_;
    bool open_ = true;
};

} // namespace sqlite
