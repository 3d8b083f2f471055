#pragma once

#include <string_view>

/// What the reconciliation of names needs to know of one kind of area.
struct ReconciledNames {
    std::string_view procedure; ///< for gsCurrentProc
    std::string_view column;    ///< the area in TblGIS_Link and TblLookup1141
    int comparedWidth = 0;      ///< characters of it that are compared
    std::string_view resultField;
    std::string_view polygonTable;
    std::string_view labelTable;
    std::string_view statisticsTable{}; ///< empty: none is renamed
    std::string_view statisticsColumn{};
    std::string_view notNames{}; ///< statement that removes further entries of TblTemp1 that are no names; may be empty
    int groupDataType = 0;       ///< customer groups of this type are renamed too; 0: none
    bool renameByCode = false;   ///< the lookup is renamed code by code, not name by name
};

/// See ModData_CheckTVNameChanges.
int reconcileNames(const ReconciledNames& names);
