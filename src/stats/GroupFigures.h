#pragma once

#include "stats/FigureSource.h"

#include <string>
#include <string_view>

/// On which areas the customer groups of an account are made: the number that tblMappingGroupSetup holds. Numbers of no
/// known kind occur.
enum class GroupAreas : long { Unknown = 0, Csg = 1, TVRegion = 2, PostcodeDistrict = 3 };

/// TblTempGIS of the project: the geography with the calls that have no place under the names that groups know them by
/// ('International', 'Mobile', 'Other'), in the column of the groups' areas. Errors are logged and passed over.
void makeGroupGeography(GroupAreas areas);

/// Figures of the groups of TblGroups, by statements. A call finds its group through TblTempGIS. Leaves the selected
/// calls behind in a table of the project that bears the name of the statistics table; calls in no group have their
/// area's name there instead.
class GroupFigures : public FigureSource {
public:
    GroupFigures(std::string table, GroupAreas areas);

    void makeSelectedData(const CallSelection& selection) override;
    void makeCallers(CallerKind kind, const std::string& where) override;
    std::vector<CallCount> callsByArea() override;
    std::vector<MoneySum> moneyByArea(CallMoney money) override;
    std::vector<CallerCount> callersByArea(CallerKind kind) override;

    /// Groups have no side panels: nothing.
    SpecialRowFigures specialRow(std::string_view test) override;
    std::vector<CallerCount> mobileAndVoipCallers(CallerKind kind) override;

private:
    void addAreasWithoutCalls();
    /// " FROM table INNER JOIN …": rows of the table that belong to a group.
    std::string fromGroupsOf(const std::string& table) const;

    std::string table_;
    GroupAreas areas_;
};
