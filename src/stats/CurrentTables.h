#pragma once

#include <string>

/// The statistics table in use for each boundary: a main, selected, population or animated table. Empty: the boundary
/// is not in use. A report sets them before it asks for a map.
struct CurrentTables {
    std::string ExchangeArea;
    std::string CSG;
    std::string TV;
    std::string PostCodeDistrict;
    std::string CustomerGroups;

    /// The name that belongs to a boundary code (0, 1, 2, 3 or 5); null for any other code.
    std::string* of(long boundary) {
        switch (boundary) {
        case 0:
            return &ExchangeArea;
        case 1:
            return &CSG;
        case 2:
            return &TV;
        case 3:
            return &PostCodeDistrict;
        case 5:
            return &CustomerGroups;
        default:
            return nullptr;
        }
    }

    void clear() { *this = {}; }
};

/// The program's tables in use. Main thread only.
inline CurrentTables currentTables;
