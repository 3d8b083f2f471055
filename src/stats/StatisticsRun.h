#pragma once

#include "stats/BoundaryTraits.h"
#include "stats/FigureSource.h"
#include "stats/StatsProgress.h"
#include "stats/TargetTable.h"

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

    const BoundaryTraits& boundary;
    bool isMain; ///< the table holds the whole project
    TargetTable target;
    std::unique_ptr<FigureSource> figures;
    StatisticsDisplay display;
};

/// Lets go of the shared recordset slots and opens the project.
void openForRun(const StatisticsRun& run);

/// The selected calls into SelectedData.
void selectCalls(StatisticsRun& run);

/// Whether the table's rows stay, with the period's figures set to 0, or are made anew from the geography.
bool keepsRows(const StatisticsRun& run);
void zeroRows(StatisticsRun& run);
void rebuildRows(StatisticsRun& run);

/// TotalCalls, Answered, Ineffective, Engaged, RTNR and Other; areas that have no row get one.
void countCalls(StatisticsRun& run);
/// Cost and Revenue. An area holds the sum of its first AnswerInd only; the whole sums are those of the side-panel
/// rows.
void sumCost(StatisticsRun& run);
void sumRevenue(StatisticsRun& run);

/// The callers into TblAnsweredCallers and TblLostCallers.
void findAnsweredCallers(StatisticsRun& run);
void findLostCallers(StatisticsRun& run);
/// LostCallers and AnsweredCallers; areas that have no row are dropped.
void countLostCallers(StatisticsRun& run);
void countAnsweredCallers(StatisticsRun& run);

/// Areas that are no places become the rows 'Other', 'International' and 'Mobile' of period 1.
void foldPseudoAreas(StatisticsRun& run);
/// A row 'Republic Of Ireland', so that the map has an entity to show.
void ensureRepublicOfIreland(StatisticsRun& run);
void removeUnnamedAreas(StatisticsRun& run);
