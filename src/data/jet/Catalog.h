#pragma once

#include "data/types/FieldType.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// A table as the storage library knows it, after links have been followed.
struct Table {
    std::string schema;         ///< name under which its file is attached, unquoted
    std::string name;           ///< its own spelling in that file, unquoted
    std::vector<Field> columns; ///< in order
    std::string link;           ///< the link's name where the statement reached it through one, else empty
    bool isView = false;        ///< its rows are those of a query and cannot be changed
};

/// "schema"."table" of the storage library; "table" for one without a schema, as a view names those of its own file.
std::string qualifiedName(const Table& table);

/// An index of a table, as ALTER TABLE must make it again.
struct Index {
    std::string name; ///< in the storage library, unquoted
    bool unique = false;
    struct Column {
        std::string name;
        bool descending = false;
    };
    std::vector<Column> columns;
};

/// What the binder asks of the database on which a statement runs. Names are compared without case.
/// Implementations throw DatabaseError (3024 for a link whose file has moved, naming link and path).
class Catalog {
public:
    virtual ~Catalog() = default;
    /// The schema in which new tables are made.
    virtual std::string defaultSchema() const = 0;
    /// A table, view or link of the database.
    virtual std::optional<Table> findTable(std::string_view name) = 0;
    /// `[path].[table]`: attaches the file if need be.
    virtual std::optional<Table> findTableIn(std::string_view path, std::string_view name) = 0;
    /// Schema of the file at `path`, for making a table there.
    virtual std::string schemaOf(std::string_view path) = 0;
    /// Whether the name is a link of the database, even one whose file has moved.
    virtual bool isLink(std::string_view name);
    /// The indexes of a table.
    virtual std::vector<Index> indexesOf(const Table& table);
};

} // namespace jet
