#include "stats/ModData_MaxValues.h"

#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "data/project/FirstValue.h"
#include "data/project/SystemDatabaseStep.h"
#include "stats/MapMaxima.h"
#include "stats/Measures.h"

#include <algorithm>

namespace {

/// The largest value of a column, where there is any.
class Column {
public:
    Column(const std::string& table, int period)
        : table_(table), period_(period),
          filter_(equalText(table, "TblCustomerGroups")
                      ? " WHERE GroupName in (SELECT GroupName FROM TblGroup_Link where tallyaccount = " +
                            quoted(gsAccount) + ") "
                      : " ") {}

    void raise(Measure measure, double& maximum) const {
        step(measure, [&](const Value& value) { maximum = std::max(maximum, value.asDouble()); });
    }
    void raise(Measure measure, std::int32_t& maximum) const {
        step(measure, [&](const Value& value) { maximum = std::max(maximum, value.asLong()); });
    }

private:
    template<typename Take>
    void step(Measure measure, Take take) const {
        const std::string column = measureColumn(measure, period_);
        onSystemDatabase([&] {
            const auto value = firstValue(systemDatabase(), "SELECT Top 1 " + column + " FROM " + table_ + filter_ +
                                                                " ORDER BY " + column + " DESC");
            if (value && !value->isNull())
                take(*value);
        });
    }

    const std::string& table_;
    int period_;
    std::string filter_;
};

bool holdsCallerFigures(const std::string& table) {
    for (const char* name :
         {"TblTV", "TblSelectedDataForTV", "TblPostCodeDistrict", "TblSelectedDataForPostCodeDistrict"}) {
        if (equalText(table, name))
            return true;
    }
    return false;
}

} // namespace

void ModData_MaxValues(const std::string& tableName, int period) {
    gsCurrentProc = "ModData_MaxValues";
    const Column column(tableName, period);
    column.raise(Measure::TotalCalls, mapMaxima.MaxTotalCalls);
    column.raise(Measure::Answered, mapMaxima.MaxAnswered);
    column.raise(Measure::Ineffective, mapMaxima.MaxIneffective);
    column.raise(Measure::Cost, mapMaxima.MaxCost);
    column.raise(Measure::Revenue, mapMaxima.MaxRevenue);
    if (!holdsCallerFigures(tableName))
        return;
    column.raise(Measure::AverageCalls, mapMaxima.MaxAverageCalls);
    column.raise(Measure::LostCallers, mapMaxima.MaxLostCallers);
    column.raise(Measure::AnsweredCallers, mapMaxima.MaxAnsweredCallers);
}
