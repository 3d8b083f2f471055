#pragma once

#include "stats/AreasOfCodes.h"
#include "stats/StatementFigures.h"
#include "stats/calls/CallColumns.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

/// Figures by a scan of the calls in memory: the same rows as by statements, in hundredths of the time. A selection
/// that does not fit columns goes to statements as a whole.
///
/// Of texts that compare equal, such as two spellings of an area, it may show another one than the statements. It
/// leaves no working tables behind where it did not go to statements.
class ScanFigures : public FigureSource {
public:
    /// `boundary` must outlive the object; `columns` are those of gdbProject.
    ScanFigures(const BoundaryTraits& boundary, std::shared_ptr<const CallColumns> columns);

    void makeSelectedData(const CallSelection& selection) override;
    void makeCallers(CallerKind kind, const std::string& where) override;
    std::vector<CallCount> callsByArea() override;
    std::vector<MoneySum> moneyByArea(CallMoney money) override;
    std::vector<CallerCount> callersByArea(CallerKind kind) override;
    SpecialRowFigures specialRow(std::string_view test) override;
    std::vector<CallerCount> mobileAndVoipCallers(CallerKind kind) override;

    /// Whether the selected calls, or the callers, came from a scan.
    bool selectedByScan() const { return selected_.has_value(); }
    bool callersByScan(CallerKind kind) const { return callersOf(kind).has_value(); }

private:
    /// Nothing where the condition does not fit.
    std::optional<CallScan> scan(const std::string& where);
    std::optional<CallScan::Callers>& callersOf(CallerKind kind) {
        return kind == CallerKind::Answered ? answered_ : lost_;
    }
    const std::optional<CallScan::Callers>& callersOf(CallerKind kind) const {
        return kind == CallerKind::Answered ? answered_ : lost_;
    }
    bool isLeftOut(std::size_t code) const;
    /// Gives the sums of every area and AnswerInd with calls, in the order of both.
    void forEachSum(const std::function<void(const AreaName&, const Value& answerInd, const CallSums&)>& take) const;

    std::string area_;
    std::shared_ptr<const CallColumns> columns_;
    StatementFigures statements_;
    std::optional<AreasOfCodes> areas_;
    CallSelection selection_;
    std::optional<CallScan> selected_;
    std::optional<CallScan::Callers> answered_, lost_;
};
