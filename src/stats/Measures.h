#pragma once

#include <array>
#include <string>
#include <string_view>

/// The figures that a statistics table holds of each area. A column is the measure's name with the period behind it:
/// period 1 is the single map or the whole project, 2 to 7 the ranges of multiple maps, 1 to 5 the frames of an
/// animated table.
enum class Measure {
    TotalCalls,
    Answered,
    Ineffective,
    Cost,
    Revenue,
    Engaged,
    RTNR,
    Other,
    LostCallers,
    AnsweredCallers,
    AverageCalls, ///< period 1 of a few tables only
};

/// The ten measures of every period, in the order of their columns.
inline constexpr std::array<Measure, 10> periodMeasures{
    Measure::TotalCalls, Measure::Answered, Measure::Ineffective, Measure::Cost,        Measure::Revenue,
    Measure::Engaged,    Measure::RTNR,     Measure::Other,       Measure::LostCallers, Measure::AnsweredCallers};

std::string_view measureName(Measure measure);
/// "TotalCalls1".
std::string measureColumn(Measure measure, int period);

/// The columns of the ten measures for the periods from 1 to `lastPeriod`: "TotalCalls1, Answered1, …".
std::string measureColumnList(int lastPeriod);

/// How many periods a zero row of a table names: 1, 5 for animated tables, 7 for those that take multiple maps.
int zeroRowPeriods(std::string_view table);

/// "INSERT INTO table (areaColumn, TotalCalls1, …) VALUES ('area', 0, …)": a row whose figures are all 0. A table of
/// seven periods also has its two columns of cost per area set.
std::string zeroRowStatement(std::string_view table, std::string_view areaColumn, std::string_view area,
                             int lastPeriod);

/// Tables of the user's selection ("…SelectedData…") and of animation frames ("…Animated…"); all others hold the whole
/// project.
bool isSelectedTable(std::string_view table);
bool isAnimatedTable(std::string_view table);
