#pragma once

#include "data/jet/Program.h"
#include "data/types/Value.h"

#include <memory>
#include <string_view>

/// The rows of a query, held in memory, with a current row. Edits go to the row of the table they came from, at once.
/// Positions outside the rows throw DatabaseError 3021 (no current record), unknown fields 3265, edits of rows that
/// belong to no single table 3027. After close() every member throws 3420.
class Recordset {
public:
    class Impl;
    explicit Recordset(std::unique_ptr<Impl> impl); ///< through Database::openRecordset
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    bool EOF_() const; ///< behind the last row (the plain name is a macro of the C library)
    bool BOF_() const;
    long RecordCount() const;      ///< exact from the start, as all rows are held
    long AbsolutePosition() const; ///< of the current row, from 0; -1 where there is none

    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();

    /// Search from the first row, from behind the current row, from the last row backward, from before the current row
    /// backward. Where nothing is found NoMatch() is true and the current row stays. Throw 3077 for an expression that
    /// cannot be read and 3070 for an unknown field; the current row stays. A search for a text or number in a column
    /// goes through an index of that column, made by the first such search.
    void FindFirst(std::string_view expression);
    void FindNext(std::string_view expression);
    void FindLast(std::string_view expression);
    void FindPrevious(std::string_view expression);
    bool NoMatch() const;

    int fieldCount() const;
    const jet::ResultColumn& field(int position) const;
    /// A value of the current row, or of the row being edited.
    const Value& value(int position) const;
    const Value& value(std::string_view field) const;

    void Edit();
    /// The new row shows the defaults of the table from the start and its counter after Update().
    void AddNew();
    void set(int position, Value value);
    void set(std::string_view field, Value value);
    /// Writes the edited or new row. Columns that are calculated from others show their new value after Requery(). A
    /// new row is appended to the rows; the current row does not move to it. Throws 3167 where the row has been deleted
    /// meanwhile, 3022, 3314 and 3315 where the table refuses it; the edit then stays open for another try.
    void Update();
    void CancelUpdate();
    /// Throws 3167 where the row has been deleted meanwhile. After it there is no current row until the next move.
    void Delete();
    /// Reads the rows anew; the cursor goes to the first. Throws 3078 where their table has been dropped, and leaves
    /// the rows as they were.
    void Requery();
    void Close();

private:
    std::unique_ptr<Impl> impl_;
};
