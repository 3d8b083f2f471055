#pragma once

#include "data/engine/AttachedFile.h"
#include "data/engine/Recordset.h"
#include "data/jet/Program.h"

#include <cstdint>
#include <memory>
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
    void search(std::string_view expression, long from);
    void writeExisting();
    void writeNew();
};
