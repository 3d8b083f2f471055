#pragma once

#include "data/engine/AttachedFile.h"
#include "data/engine/KeySearch.h"
#include "data/engine/Recordset.h"
#include "data/jet/Program.h"
#include "data/jet/Search.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The rows of a recordset and where its cursor stands.
class Recordset::Impl {
public:
    Impl(std::shared_ptr<AttachedFile> file, jet::Program program);

    /// Reads all rows; the cursor goes to the first.
    void query();

    std::shared_ptr<AttachedFile> file; ///< null after Close()
    jet::Program program;
    std::vector<Value> cells;         ///< row × column
    std::vector<std::int64_t> rowids; ///< of the base table, where the rows can be edited
    long rows = 0;
    long cursor = 0; ///< -1 before the first row, `rows` behind the last
    bool noMatch = false;
    bool deleted = false; ///< the current row has just been deleted

    enum class Editing { None, Existing, New };
    Editing editing = Editing::None;
    std::vector<Value> buffer; ///< the row being edited
    std::vector<bool> touched; ///< which of its columns were set

    int columns() const { return static_cast<int>(program.columns.size()); }
    void requireOpen() const;
    void requireRow() const;
    void requireEditable() const;
    int position(std::string_view field) const; ///< throws 3265
    int find(std::string_view field) const;     ///< -1 where there is none
    const Value& cell(long row, int column) const;
    /// The table's column behind a column of the rows; throws 3164 where it shows none.
    const Field& tableField(int column) const;
    /// Goes to the first row from `from` on that the expression holds for.
    void search(std::string_view expression, long from);
    void requery();
    void writeExisting();
    void writeNew();
    void removeRow();

private:
    /// "schema"."table" and the name of its row number; of editable rows.
    std::string tableName() const;
    std::string rowName() const;
    /// The columns that the edit has set, as "name"<between> of each, joined by commas.
    std::string touchedColumns(std::string_view behind) const;
    /// Binds the values of those columns from parameter 1 on; the next free parameter.
    int bindTouched(sqlite::Statement& statement) const;
    /// What the table made of a new row: its defaults and numbers.
    void readDefaults(std::int64_t rowid);
    /// Null where the column is no text or holds other values than texts.
    const KeyIndex* keysOf(int column);
    long searchByTest(std::string_view expression, long from);

    /// Columns by their texts, made by the first search for a key and kept true by edits; nothing for a column that
    /// holds other values.
    std::map<int, std::optional<KeyIndex>> keys_;
    /// The last search that was no search for a key; FindNext repeats the expression of FindFirst.
    std::optional<jet::Search> test_;
    std::string testText_;
};
