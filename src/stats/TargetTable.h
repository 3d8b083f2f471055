#pragma once

#include "data/engine/Recordset.h"
#include "data/types/Value.h"
#include "stats/BoundaryTraits.h"
#include "stats/Measures.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct MeasureValue {
    Measure measure;
    Value value;
};

/// The statistics table that a run fills, row by row: one period's columns of it.
///
/// The rows are read in the order of their areas, so that figures that come in the same order find theirs by searching
/// forward. A measure whose column the table does not have is passed over. Throws as Recordset does, and RuntimeError
/// 91 where the rows were never read.
class TargetTable {
public:
    TargetTable(std::string table, const BoundaryTraits& boundary, int period);

    const std::string& name() const { return table_; }
    const std::string& areaColumn() const { return areaColumn_; }
    int period() const { return period_; }

    /// Reads the rows anew; the next forward search begins with the first of them.
    void read();
    /// The same where the rows are those that were read, in their order: reads anew only where one was added.
    void fromStart();
    void close();

    /// From the first row.
    bool findFirst(const std::string& expression);
    /// From behind the row of the last hit since read(), or from the first row where there was none.
    bool findForward(const std::string& expression);
    /// "TVRegion = 'area'". An apostrophe in the area makes it an expression that cannot be read.
    std::string areaIs(std::string_view area) const;
    /// "UCASE(TVRegion) = 'AREA'".
    std::string upperAreaIs(std::string_view area) const;

    /// A row for the area with every figure 0; it becomes the row that write() goes to.
    void addArea(const Value& area);
    /// Into the row of the last hit.
    void write(const std::vector<MeasureValue>& values);

    /// The period's figures of every row to 0. A row that cannot be written is logged and passed over.
    void zeroPeriod();

private:
    Recordset& rows();
    void findColumns();
    void set(Measure measure, const Value& value);

    std::string table_;
    std::string areaColumn_;
    PeriodColumns columns_;
    int period_;
    std::shared_ptr<Recordset> rows_;
    std::map<Measure, int> positions_; ///< of the columns that the table has
    bool hit_ = false;
    bool grown_ = false; ///< since read()
};
