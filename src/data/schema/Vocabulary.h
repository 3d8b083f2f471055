#pragma once

#include "data/engine/TableDefs.h"

#include <span>
#include <string_view>
#include <vector>

/// The four kinds of database file, and the passwords with which the program opens them.
enum class DatabaseKind { Project, SystemMap, CustomerGroups, CommunityGroups };

inline constexpr std::string_view ProjectPassword = "QzMarlKey";
inline constexpr std::string_view SystemMapPassword = "VtDrmkqpwzs";
inline constexpr std::string_view ProjectConnect = "MS Access;PWD=QzMarlKey";
inline constexpr std::string_view SystemMapConnect = "MS Access;PWD=VtDrmkqpwzs";

/// Who makes a table: delivered with the product or by Callscope, or made by this program where it is missing.
enum class TableOrigin { Delivered, MadeHere, Working };

/// One table of the vocabulary.
struct VocabularyTable {
    DatabaseKind database;
    TableOrigin origin;
    TableDef definition;
};

/// Every table that the program touches, with its columns in order.
const std::vector<VocabularyTable>& tableVocabulary();
/// The definition of a table, without case. Throws std::out_of_range for a name that is not in the vocabulary.
const TableDef& vocabularyTable(DatabaseKind database, std::string_view name);

class Database;
/// Makes a table of the vocabulary in an open database. Throws DatabaseError 3010 where it exists.
void createVocabularyTable(Database& database, DatabaseKind kind, std::string_view name);
