#pragma once

#include "data/jet/Catalog.h"
#include "data/jet/Expression.h"
#include "data/jet/Program.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace jet {

/// `name`, `[name]` or `[path].[name]`.
struct TableName {
    std::string path; ///< of another file; mostly empty
    std::string name;
    std::size_t position = 0;
};

/// A table or derived table whose columns can be named; made by bind.
struct Source {
    std::string name; ///< under which its columns are qualified: alias or table name
    std::vector<ResultColumn> columns;
    std::optional<Table> table; ///< nothing for a derived table
};

/// One item of a FROM clause.
struct FromItem {
    enum class Kind { Table, Derived, Join };
    enum class Join { Inner, Left, Right };

    Kind kind = Kind::Table;
    std::size_t position = 0;
    TableName table;
    std::string alias;            ///< of a table or derived table; may be empty
    std::unique_ptr<Query> query; ///< of a derived table
    Join join = Join::Inner;
    std::unique_ptr<FromItem> left, right; ///< of a join
    ExpressionPtr on;                      ///< of a join
    int depth = 1;

    std::unique_ptr<Source> source; ///< filled by bind; not for joins
};

/// One column of a SELECT as written: an expression with or without alias, `*`, or `table.*`.
struct SelectColumn {
    ExpressionPtr expression; ///< null for a star
    std::string alias;
    std::string qualifier; ///< of `table.*`
    std::size_t position = 0;
};

struct OrderTerm {
    ExpressionPtr expression;
    bool descending = false;
    int column = -1; ///< filled by bind: the result column it names, from 0, or -1 where it is an expression of its own
};

/// One SELECT without ORDER BY.
struct Select {
    std::size_t position = 0;
    bool distinct = false;
    std::optional<std::int64_t> top;
    bool topPercent = false;
    std::vector<SelectColumn> columns;
    std::optional<TableName> into;
    std::vector<std::unique_ptr<FromItem>> from; ///< separated by commas
    ExpressionPtr where;
    std::vector<ExpressionPtr> groupBy;
    ExpressionPtr having;

    /// Filled by bind: the stars expanded, every column with its name and type.
    struct Output {
        ExpressionPtr expanded; ///< of a star; the others are in `columns`
        const Expression* expression = nullptr;
        ResultColumn column;
    };
    std::vector<Output> outputs;
    bool grouped = false;
};

/// A SELECT, or several joined by UNION, with the ORDER BY of the whole.
struct Query {
    std::vector<Select> selects; ///< one or more
    std::vector<bool> unionAll;  ///< between each two of them
    std::vector<OrderTerm> order;

    const std::vector<Select::Output>& outputs() const { return selects.front().outputs; }
};

} // namespace jet
