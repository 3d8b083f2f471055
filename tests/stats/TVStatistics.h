#pragma once

#include "core/ModDeclarations.h"
#include "stats/Measures.h"
#include "tests/support/SmallInstallation.h"

#include <string>
#include <vector>

/// A project whose calls fall into real regions, into none, and outside the map; see the counts beside the calls.
class TVProject : public SmallInstallation {
public:
    TVProject() {
        addPlaces({{"01", "London"},
                   {"02", "Granada"},
                   {"03", "Granada"},
                   {"04", "null"},
                   {"05", ""},
                   {"06", "Mary's Isle"},
                   {".33", ".France"},
                   {".49", ".Germany"},
                   {"MOBILE", "MOBILE"},
                   {"VOIP", "VOIP"},
                   {"NO CLI", "NO CLI"},
                   {"OLO", "OLO"},
                   {"UNTRACEAB", "UNTRACEAB"}});
        gdbSystem->execute("INSERT INTO TblLookup1141 ([1141], TVArea) VALUES ('01', 'London')");
        gdbSystem->execute("INSERT INTO TblLookup1141 ([1141], TVArea) VALUES ('02', 'Granada')");
        TableDef link = gdbSystem->createTableDef("TblGIS_Link");
        link.connect = "MS Access;DATABASE=" + file("project.mdb") + ";PWD=QzMarlKey";
        link.sourceTableName = "TblMappingGIS";
        gdbSystem->tableDefs().append(link);
    }

    /// The whole of the calls; the first nine days are weekdays of the selections below.
    void addAllCalls() {
        addCalls({
            // London: A was answered once and not once, B too, C never.
            {"A", "01", "8", 2.00, 2},
            {"A", "01", "2", 0.25, 1},
            {"B", "01", "4", -0.40, 1},
            {"B", "01", "0", 1.50, 2},
            {"C", "01", "3", 0.00, 1},
            // Granada, two codes.
            {"D", "02", "9", -1.25, 1},
            {"D", "03", "9", -0.75, 1},
            {"E", "03", "0", 0.10, 1},
            // On no region of the map.
            {"F", "04", "0", 9.00, 1},
            {"G", "05", "0", 9.00, 1},
            {"H", "99", "0", 9.00, 1},
            {"P", "06", "0", 1.00, 1},
            // Beside the map.
            {"M1", "MOBILE", "0", 0.30, 1},
            {"M2", "MOBILE", "10", 0.00, 1},
            {"", "NO CLI", "4", 0.00, 1},
            {"O1", "OLO", "0", 0.05, 1},
            {"I1", ".33", "0", 3.00, 1},
            {"I1", ".33", "x", 0.00, 1},
            {"I2", ".49", "0", 2.00, 1},
            {"V1", "VOIP", "2", 0.00, 1},
        });
    }
};

/// The rows of a statistics table by area: name, then the ten measures of a period in their order.
inline std::vector<std::string> figures(const std::string& table, int period = 1) {
    std::string columns = "TVRegion";
    for (const Measure measure : periodMeasures)
        columns += ", " + measureColumn(measure, period);
    return rowsOf(*gdbSystem, "SELECT " + columns + " FROM " + table + " ORDER BY TVRegion");
}

using Rows = std::vector<std::string>;
