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

    std::shared_ptr<AttachedFile> file;   ///< null after Close()
    std::shared_ptr<AttachedFile> edited; ///< that whose rows can be edited, which a link may have led to
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
    enum class Direction { Forward, Backward };
    /// Goes to the nearest row from `from` on, itself included, that the expression holds for.
    void search(std::string_view expression, long from, Direction direction);
    /// Opens an empty row for editing, with the defaults of the table.
    void beginNew();
    void requery();
    void writeExisting();
    void writeNew();
    void removeRow();
    /// Lets go of the statement that is kept for the next row.
    void forgetChange() { change_.reset(); }

private:
    /// Of each column of the rows the position of the table's column behind it; -1 for none.
    void findTableFields();
    /// The statement ready for its values: the one of the last row where it is the same, as it mostly is.
    sqlite::Statement& changing(const std::string& sql);
    /// Runs it to its end and lets go of the file.
    static void run(sqlite::Statement& statement);

    /// "schema"."table" and the name of its row number; of editable rows.
    std::string tableName() const;
    std::string rowName() const;
    /// The columns that the edit has set, each as its quoted name with `behind` after it, joined by commas.
    std::string touchedColumns(std::string_view behind) const;
    /// Binds the values of those columns from parameter 1 on; the next free parameter.
    int bindTouched(sqlite::Statement& statement) const;
    /// What the table made of a new row: its defaults and numbers.
    void readDefaults(std::int64_t rowid);
    /// Null where the values of the column are not of this kind.
    const KeyIndex* keysOf(int column, KeySearch::Kind kind);
    std::optional<KeyIndex> makeKeys(int column, KeySearch::Kind kind) const;
    /// The row found, -1 for none.
    long searchByKey(const KeyIndex& keys, const KeySearch& wanted, std::string_view expression, long from,
                     Direction direction);
    long searchByTest(std::string_view expression, long from, Direction direction);
    /// Makes the test of an expression the current one.
    void compileTest(std::string_view expression);
    bool passesTest(long row) const;

    /// Columns by their values, made by the first search for a key and kept true by edits; nothing for a column that
    /// holds values of another kind than its own.
    std::map<int, std::optional<KeyIndex>> keys_;
    std::vector<int> tableFields_;
    std::optional<sqlite::Statement> change_;
    std::string changeText_;
    /// The last search that was no search for a key; FindNext repeats the expression of FindFirst.
    std::optional<jet::Search> test_;
    std::string testText_;
};
