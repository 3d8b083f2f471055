#pragma once

/// What a marketing campaign has cost, spread over the answered calls and their callers.

/// Asks for the total of the campaign and sets gcCampaignSpend, campaignCosts. False where they stay as they were: the
/// user cancelled, the amount was refused (the user is told) or the project has no answered calls (which is logged).
/// Main thread.
bool enterCampaignSpend();

/// Writes the costs of each area, from the figures of data set `dataSet` (1 to 7), to the statistics table in use of a
/// boundary code. False where a statement failed, which is logged: the table lacks the columns.
bool updateCostPerCallStats(long boundary, int dataSet);
