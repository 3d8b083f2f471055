#pragma once

#include "data/jet/Catalog.h"
#include "data/types/FieldType.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// A column of a query's result. `type` is empty where it is only known per value (an expression over mixed types).
struct ResultColumn {
    std::string name;
    std::optional<FieldType> type;
    int size = 0;
    std::string sourceColumn; ///< of a query over one table: the table's column that it shows unchanged, else empty
};

/// One thing to do on the storage library, in order.
struct Step {
    enum class Kind {
        Execute,  ///< run `sql`
        Count,    ///< run `sql`; its changed rows are the statement's RecordsAffected
        DropLink, ///< remove the link named `sql` from the database's catalogue
    };
    Kind kind = Kind::Execute;
    std::string sql;
};

/// A statement of the dialect translated for the storage library.
struct Program {
    bool isQuery = false;
    std::string query;                 ///< of a query: one SELECT
    std::vector<ResultColumn> columns; ///< of a query
    std::vector<Step> steps;           ///< of anything else; all of them or none (the engine wraps them in a savepoint)
    bool changesSchema = false;        ///< a table or link was made, changed or dropped
    /// Of a query over one table without grouping, DISTINCT or UNION: the table whose rows it shows. The engine then
    /// asks for the row numbers with `rowidQuery`, the same query with the table's rowid as first column, and can edit
    /// the rows.
    std::optional<Table> updatable;
    std::string rowidQuery;
};

/// Translates one statement. A bare table name is taken as "SELECT * FROM [name]".
/// Throws DatabaseError with number, words and byte position. Runs on the thread that owns the catalogue.
Program translate(std::string_view statement, Catalog& catalog);

} // namespace jet
