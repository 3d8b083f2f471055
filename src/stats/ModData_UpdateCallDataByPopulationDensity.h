#pragma once

/// Fills tblTVByPopulation and tblPostCodeByPopulation: the figures of TblTV and TblPostCodeDistrict for each head of
/// population. An area whose population is not known, or 0, has the rate 0; rates below 0.0001 are rounded to eight
/// decimals. Returns 0, or -1 where a statement failed; that one is logged and the others are run.
int ModData_UpdateCallDataByPopulationDensity();
