#include "stats/TargetTable.h"

#include "core/RuntimeError.h"
#include "data/project/Databases.h"
#include "data/project/SystemDatabaseStep.h"
#include "data/types/DatabaseError.h"

#include <array>

namespace {

constexpr std::array<Measure, 11> allMeasures{
    Measure::TotalCalls,  Measure::Answered,        Measure::Ineffective, Measure::Cost,
    Measure::Revenue,     Measure::Engaged,         Measure::RTNR,        Measure::Other,
    Measure::LostCallers, Measure::AnsweredCallers, Measure::AverageCalls};

/// A search that cannot be read names its expression, in which the area stands.
template<typename Find>
void search(const std::string& expression, Find find) {
    try {
        find();
    } catch (const DatabaseError& error) {
        throw DatabaseError(error.number(), error.description() + " in: " + expression, error.position());
    }
}

} // namespace

TargetTable::TargetTable(std::string table, const BoundaryTraits& boundary, int period)
    : table_(std::move(table)), areaColumn_(boundary.areaColumn), columns_(boundary.periodColumns), period_(period) {}

Recordset& TargetTable::rows() {
    if (!rows_)
        throw RuntimeError(91, "Object variable not set");
    return *rows_;
}

void TargetTable::read() {
    rows_ = systemDatabase().openRecordset("SELECT * FROM " + table_ + " ORDER BY " + areaColumn_);
    hit_ = false;
    grown_ = false;
    findColumns();
}

void TargetTable::fromStart() {
    if (!rows_ || grown_)
        read();
    hit_ = false;
}

void TargetTable::findColumns() {
    positions_.clear();
    if (columns_ == PeriodColumns::ByPosition) {
        int position = (period_ - 1) * static_cast<int>(periodMeasures.size()) + 1;
        for (const Measure measure : periodMeasures) {
            if (position < rows_->fieldCount())
                positions_[measure] = position;
            ++position;
        }
        return;
    }
    for (const Measure measure : allMeasures) {
        const std::string column = measureColumn(measure, period_);
        for (int position = 0; position < rows_->fieldCount(); ++position) {
            if (equalText(rows_->field(position).name, column))
                positions_[measure] = position;
        }
    }
}

void TargetTable::close() {
    if (rows_)
        rows_->Close();
    rows_.reset();
}

bool TargetTable::findFirst(const std::string& expression) {
    search(expression, [&] { rows().FindFirst(expression); });
    hit_ = hit_ || !rows().NoMatch();
    return !rows().NoMatch();
}

bool TargetTable::findForward(const std::string& expression) {
    if (!hit_)
        return findFirst(expression);
    search(expression, [&] { rows().FindNext(expression); });
    return !rows().NoMatch();
}

std::string TargetTable::areaIs(std::string_view area) const {
    return areaColumn_ + " = '" + std::string(area) + "'";
}

std::string TargetTable::upperAreaIs(std::string_view area) const {
    return "UCASE(" + areaColumn_ + ") = '" + upperText(area) + "'";
}

void TargetTable::addArea(const Value& area) {
    grown_ = true;
    rows().AddNew();
    rows().set(0, area);
    for (int position = 1; position < rows().fieldCount(); ++position)
        rows().set(position, 0);
    rows().Update();
    rows().MoveLast();
    hit_ = true;
}

void TargetTable::set(Measure measure, const Value& value) {
    const auto column = positions_.find(measure);
    if (column != positions_.end())
        rows().set(column->second, value);
}

void TargetTable::write(const std::vector<MeasureValue>& values) {
    rows().Edit();
    for (const auto& [measure, value] : values)
        set(measure, value);
    rows().Update();
}

void TargetTable::zeroPeriod() {
    for (; !rows().EOF_(); rows().MoveNext()) {
        onSystemDatabase([this] {
            rows().Edit();
            for (const Measure measure : allMeasures)
                set(measure, 0);
            rows().Update();
        });
    }
}
