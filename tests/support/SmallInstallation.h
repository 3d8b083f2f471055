#pragma once

#include "data/engine/Database.h"
#include "data/schema/Vocabulary.h"
#include "tests/support/TemporaryFolder.h"

#include <string>
#include <string_view>
#include <vector>

/// One call of a small project. Days are days of January 2025.
struct SmallCall {
    std::string caller; ///< empty: null
    std::string code;   ///< [1141]
    std::string answerInd;
    double discounted = 0;
    int day = 1;
    std::string time = "12:00:00";
    std::string called = "0800";
    std::string answerPoint = "Leeds";
    std::string destination = "D1";
};

/// Where a code lies. "null" is a null area.
struct SmallPlace {
    std::string code;
    std::string tvArea;
    std::string exchange = "null";
};

/// An installation in a folder of its own, with every file of the program and the globals set to it: ukmap.mdb open,
/// CustomerGroups.mdb, comgroups.mdb and the template CSProject.bak made, and a project with empty tables, open as
/// well. The account is "ACC". Everything is let go at the end.
class SmallInstallation {
public:
    SmallInstallation();
    ~SmallInstallation();
    SmallInstallation(const SmallInstallation&) = delete;
    SmallInstallation& operator=(const SmallInstallation&) = delete;

    std::string file(const std::string& name) const { return folder_.file(name); }

    void addCalls(const std::vector<SmallCall>& calls);
    /// Rows of TblMappingGIS, or of another table with those columns.
    void addPlaces(const std::vector<SmallPlace>& places, const std::string& table = "TblMappingGIS");

    /// The lines of the error log, without their date and time: `"procedure",number,"description"`.
    std::vector<std::string> logLines() const;
    /// How many of them hold the text.
    long logLinesWith(const std::string& text) const;

private:
    TemporaryFolder folder_;
};

/// The rows of a query, each with "|" between its values; a null is "null".
std::vector<std::string> rowsOf(Database& database, std::string_view query);
/// The only value of a query's first row, as in rowsOf.
std::string valueOf(Database& database, std::string_view query);
