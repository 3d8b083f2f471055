#pragma once

#include <array>
#include <string_view>

/// What the progress display shows while a boundary's main table is filled. A step without a text shows none.
struct StatisticsTexts {
    std::string_view selection{}; ///< finding the selected calls
    std::string_view rows{};      ///< making the rows
    std::string_view calls{};
    std::string_view cost{};
    std::string_view revenue{};
    std::string_view answeredCallers{}; ///< finding them
    std::string_view lostCallers{};
    std::string_view lostCounts{}; ///< counting them by area
    std::string_view answeredCounts{};
    std::string_view sidePanels{};
};

/// Which areas of the calls a step takes. Areas without a name are never taken.
struct AreaFilter {
    bool numbersOnly = false;                  ///< only names that are numbers, and those of `besides`
    std::array<std::string_view, 5> besides{}; ///< empty names fill up

    bool takes(std::string_view area) const;
};

/// How the columns of a period are told: by their names, or by where they stand, ten a period behind the area.
enum class PeriodColumns { ByName, ByPosition };

/// How the callers of an area find its row: forward by the name in capitals, else from the first row; or forward by the
/// name as it is and no further, which is enough where the rows were made in the same run.
enum class CallerSearch { AnyPlace, ForwardOnly };

/// In which names a kind of area appears, and by what its statistics differ from those of the other kinds.
struct BoundaryTraits {
    std::string_view mainTable{};                 ///< figures of the whole project
    std::string_view areaColumn{};                ///< the key of the statistics tables
    std::string_view dataColumn{};                ///< the area in TblMappingGIS and in the working tables
    std::string_view areasFrom = "TblMappingGIS"; ///< the table of the project whose areas get a row
    std::string_view areasWhere{};                ///< condition " WHERE …" on it; may be empty
    std::string_view shapeTable{};                ///< whose names get rows too; empty: none
    /// An area that gets its row under another name.
    std::string_view renamedArea{}, newName{};
    std::string_view overseasTest{};
    /// The tables whose side-panel rows are repaired from the selected calls; empty names fill up.
    std::array<std::string_view, 4> specialRowTables{};
    /// Later periods without a selection leave out callers that have no place.
    bool laterPeriodsPlacedOnly = false;
    PeriodColumns periodColumns = PeriodColumns::ByName;
    AreaFilter countedAreas{}; ///< whose calls are counted
    AreaFilter summedAreas{};  ///< whose money is summed
    /// Areas whose row is searched for from the first one for every sum, so that the last sum of theirs stays.
    std::array<std::string_view, 3> summedFromFirstRow{};
    CallerSearch callerSearch = CallerSearch::AnyPlace;
    bool callersInPeriodOne = false; ///< callers go to the columns of period 1 whatever the period of the run
    bool alwaysShowsTexts = false;   ///< not only while the main table is filled
    StatisticsTexts texts{};
};

extern const BoundaryTraits tvRegions;
extern const BoundaryTraits callingSubscriberGeographies;
extern const BoundaryTraits exchanges;
extern const BoundaryTraits postcodeDistricts;
extern const BoundaryTraits customerGroups;

/// The boundary among whose specialRowTables the table is; null for any other table.
const BoundaryTraits* boundaryOfSpecialRows(std::string_view table);
