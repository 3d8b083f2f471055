#pragma once

#include "data/jet/Query.h"

#include <variant>

namespace jet {

/// INSERT INTO table [(columns)] VALUES (values) or a query.
struct Insert {
    TableName table;
    struct Column {
        std::string name;
        std::size_t position = 0;
    };
    std::vector<Column> columns; ///< empty where none are listed
    std::vector<ExpressionPtr> values;
    std::unique_ptr<Query> query; ///< null for VALUES
    std::size_t position = 0;
};

/// UPDATE tables SET column = value, … [WHERE …]
struct Update {
    std::vector<std::unique_ptr<FromItem>> from;
    struct Assignment {
        ExpressionPtr target; ///< a Column
        ExpressionPtr value;
    };
    std::vector<Assignment> assignments;
    ExpressionPtr where;
    std::size_t position = 0;
};

/// DELETE [* | table.*] FROM tables [WHERE …]
struct Delete {
    std::string target; ///< of `table.*`; empty otherwise
    std::vector<std::unique_ptr<FromItem>> from;
    ExpressionPtr where;
    std::size_t position = 0;
};

/// A column as CREATE TABLE and ALTER TABLE define it.
struct ColumnDefinition {
    Field field;
    bool primaryKey = false;
    bool unique = false;
    std::size_t position = 0;
};

/// An index or a key over several columns.
struct IndexDefinition {
    std::string name; ///< may be empty for a key of CREATE TABLE
    struct Column {
        std::string name;
        bool descending = false;
        std::size_t position = 0;
    };
    std::vector<Column> columns;
    bool unique = false;
    bool primary = false;
    std::size_t position = 0;
};

struct CreateTable {
    TableName table;
    std::vector<ColumnDefinition> columns;
    std::vector<IndexDefinition> keys;
};

struct CreateIndex {
    TableName table;
    IndexDefinition index;
};

struct DropTable {
    TableName table;
};

struct DropIndex {
    std::string name;
    std::size_t position = 0;
    TableName table;
};

/// ALTER TABLE table ADD | ALTER | DROP [COLUMN] …
struct AlterTable {
    enum class Action { Add, Alter, Drop };
    TableName table;
    Action action = Action::Add;
    std::vector<ColumnDefinition> columns; ///< of Drop only name and position count
};

using Statement =
    std::variant<Query, Insert, Update, Delete, CreateTable, CreateIndex, DropTable, DropIndex, AlterTable>;

} // namespace jet
