#pragma once

#include <array>
#include <string_view>

/// What the progress display shows while a boundary's main table is filled.
struct StatisticsTexts {
    std::string_view areas;
    std::string_view cost;
    std::string_view revenue;
    std::string_view answeredCallers;
    std::string_view lostCallers;
    std::string_view sidePanels;
};

/// In which names a kind of area appears, and how its calls from abroad are told.
struct BoundaryTraits {
    std::string_view mainTable;  ///< figures of the whole project
    std::string_view areaColumn; ///< the key of the statistics tables
    std::string_view dataColumn; ///< the area in TblMappingGIS and in the working tables
    std::string_view overseasTest;
    /// The tables whose side-panel rows are repaired from the selected calls; empty names fill up.
    std::array<std::string_view, 4> specialRowTables;
    StatisticsTexts texts;
};

extern const BoundaryTraits tvRegions;
extern const BoundaryTraits callingSubscriberGeographies;
extern const BoundaryTraits exchanges;
extern const BoundaryTraits postcodeDistricts;

/// The boundary among whose specialRowTables the table is; null for any other table.
const BoundaryTraits* boundaryOfSpecialRows(std::string_view table);
