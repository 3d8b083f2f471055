#pragma once

#include "stats/BoundaryTraits.h"
#include "stats/FigureSource.h"
#include "stats/StatsProgress.h"
#include "stats/TargetTable.h"

#include <functional>
#include <memory>
#include <string>

/// One run of the statistics: the calls of the open project, counted by the areas of a boundary into one period of a
/// table of the system map database. `boundary` must outlive it. Main thread only.
///
/// The steps below are the parts of which the procedures of the boundaries are made. Each reads SelectionSql where
/// calls are chosen; each logs its errors under gsCurrentProc and goes on with its next statement or row, so that a run
/// always ends and leaves what could be counted.
struct StatisticsRun {
    StatisticsRun(const BoundaryTraits& traits, const std::string& table, int period);
    /// With another source of figures than the boundary's; null where it is set later, before the steps that count.
    StatisticsRun(const BoundaryTraits& traits, const std::string& table, int period,
                  std::unique_ptr<FigureSource> source);

    const BoundaryTraits& boundary;
    bool isMain; ///< the table holds the whole project
    TargetTable target;
    std::unique_ptr<FigureSource> figures;
    StatisticsDisplay display;
};

/// Runs the steps of `procedure` on the project, opened anew, as one transaction over the open files. Lets go of the
/// shared recordset slots before and of the target's rows behind.
void runStatistics(std::string_view procedure, StatisticsRun& run, const std::function<void()>& steps);

/// The selected calls into SelectedData.
void selectCalls(StatisticsRun& run);

/// Whether the table's rows stay, with the period's figures set to 0, or are made anew from the geography.
bool keepsRows(const StatisticsRun& run);
void zeroRows(StatisticsRun& run);
/// A row for each area of the project, and for each shape of the boundary's shape table that has no calls.
void rebuildRows(StatisticsRun& run);
void keepOrRebuildRows(StatisticsRun& run);

/// TotalCalls, Answered, Ineffective, Engaged, RTNR and Other; areas that have no row get one.
void countCalls(StatisticsRun& run);
/// Cost and Revenue. An area holds the sum of its first AnswerInd only (of its last, where the boundary searches from
/// the first row); the whole sums are those of the side-panel rows.
void sumCost(StatisticsRun& run);
void sumRevenue(StatisticsRun& run);
/// All of these.
void countCallsAndMoney(StatisticsRun& run);

/// The callers into TblAnsweredCallers and TblLostCallers.
void findAnsweredCallers(StatisticsRun& run);
void findLostCallers(StatisticsRun& run);
/// LostCallers and AnsweredCallers; areas that have no row are dropped.
void countLostCallers(StatisticsRun& run);
void countAnsweredCallers(StatisticsRun& run);
/// All of these.
void countCallers(StatisticsRun& run);

/// What the sums of a row are where there is no row to sum.
enum class EmptySums { Zero, Null };

/// Areas that are no places become the rows 'Other', 'International' and 'Mobile' of period 1, present even without
/// calls. `unplaced` is about the row 'Other'.
void foldPseudoAreas(StatisticsRun& run, EmptySums unplaced);
/// The first two of them alone, where they have calls.
void foldUnplacedAndOverseas(StatisticsRun& run, EmptySums unplaced);
/// Writes the name of an existing row as 'Mobile'.
void nameMobile(StatisticsRun& run);
/// A row of zeros where there is no row of the name: 'VOIP'; 'Republic Of Ireland', so that the map has an entity to
/// show.
void ensureRow(StatisticsRun& run, std::string_view name);
/// Removes the rows of these names, a list in quotes, or of the names that fit a pattern.
void removeRows(StatisticsRun& run, std::string_view names);
void removeRowsLike(StatisticsRun& run, std::string_view pattern);
void removeUnnamedAreas(StatisticsRun& run);
