#pragma once

#include "stats/GroupFigures.h"
#include "stats/GroupsOfCodes.h"
#include "stats/calls/CallColumns.h"

#include <memory>
#include <optional>
#include <string>

/// Figures of the groups of TblGroups by a scan of projectCalls(): the same as by statements, to which it leaves what
/// does not fit a scan; where figureEngine() is Scan that is an error that is logged. The working tables are left
/// behind as views.
class GroupScanFigures : public FigureSource {
public:
    GroupScanFigures(std::string table, GroupAreas areas);

    void makeSelectedData(const CallSelection& selection) override;
    void makeCallers(CallerKind kind, const std::string& where) override;
    std::vector<CallCount> callsByArea() override;
    std::vector<MoneySum> moneyByArea(CallMoney money) override;
    std::vector<CallerCount> callersByArea(CallerKind kind) override;

    /// Groups have no side panels: nothing.
    SpecialRowFigures specialRow(std::string_view test) override;
    std::vector<CallerCount> mobileAndVoipCallers(CallerKind kind) override;

private:
    /// Nothing where the selection does not fit; `refusal_` then says why.
    std::optional<CallScan> scan(const std::string& where);
    void leaveSelectedCalls(const std::string& where) const;
    void leaveCallers(CallerKind kind, const std::string& where) const;

    std::string table_;
    GroupAreas areas_;
    GroupFigures statements_;
    std::shared_ptr<const CallColumns> columns_;
    std::optional<GroupsOfCodes> groups_;
    std::string where_;
    std::optional<CallScan> selected_;
    std::optional<std::vector<CallerCount>> answered_, lost_;
    bool selectedByNobody_ = false; ///< a scan was wanted and could not be done
    std::string refusal_;
};

/// The source that the program uses for customer groups, as figureEngine() says.
std::unique_ptr<FigureSource> newGroupFigureSource(const std::string& table, GroupAreas areas);
