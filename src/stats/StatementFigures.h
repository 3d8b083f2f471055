#pragma once

#include "stats/FigureSource.h"

#include <string>
#include <string_view>

/// Figures by statements on the project: one grouped statement for each, so that the work on single calls is the
/// storage engine's. Holds no rows.
class StatementFigures : public FigureSource {
public:
    /// `boundary` must outlive the object.
    explicit StatementFigures(const BoundaryTraits& boundary);

    void makeSelectedData(const CallSelection& selection) override;
    void makeCallers(CallerKind kind, const std::string& where) override;
    std::vector<CallCount> callsByArea() override;
    std::vector<MoneySum> moneyByArea(CallMoney money) override;
    std::vector<CallerCount> callersByArea(CallerKind kind) override;
    SpecialRowFigures specialRow(std::string_view test) override;
    std::vector<CallerCount> mobileAndVoipCallers(CallerKind kind) override;

private:
    /// "table.column" of the boundary's area in a working table.
    std::string areaIn(std::string_view table) const;

    std::string area_; ///< area column of the calls' geography
};
