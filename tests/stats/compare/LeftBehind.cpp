#include "tests/stats/compare/LeftBehind.h"

#include <algorithm>

namespace {

std::string shown(const Value& value) {
    return value.isNull() ? "null" : value.asText();
}

TableRows rowsOfTable(Database& database, const std::string& table) {
    TableRows read{table, {}, {}};
    const auto rows = database.openRecordset("SELECT * FROM " + table);
    for (int column = 0; column < rows->fieldCount(); ++column)
        read.columns.push_back(rows->field(column).name);
    for (; !rows->EOF_(); rows->MoveNext()) {
        read.rows.emplace_back();
        for (int column = 0; column < rows->fieldCount(); ++column)
            read.rows.back().push_back(shown(rows->value(column)));
    }
    return read;
}

/// No rows and no columns where the project does not have it.
TableRows workingTable(const std::string& table) {
    gdbProject->tableDefs().refresh();
    if (!gdbProject->tableDefs().find(table))
        return {table, {}, {}};
    TableRows read = rowsOfTable(*gdbProject, table);
    for (auto& row : read.rows) {
        for (std::string& value : row) {
            value = foldText(value);
            std::erase(value, '\''); // a view shows that the run has taken them from names since it looked at the calls
        }
    }
    std::sort(read.rows.begin(), read.rows.end());
    return read;
}

std::string joined(const std::vector<std::string>& values) {
    std::string line;
    for (const std::string& value : values)
        line += (line.empty() ? "" : "|") + value;
    return line;
}

std::string differenceOf(const TableRows& scanned, const TableRows& stated) {
    if (scanned.columns != stated.columns)
        return "columns " + joined(scanned.columns) + " by scan, " + joined(stated.columns) + " by statements";
    for (std::size_t row = 0; row < std::min(scanned.rows.size(), stated.rows.size()); ++row) {
        for (std::size_t column = 0; column < scanned.columns.size(); ++column) {
            if (scanned.rows[row][column] != stated.rows[row][column])
                return "row " + std::to_string(row) + ", '" + stated.rows[row][0] + "', column " +
                       scanned.columns[column] + ": '" + scanned.rows[row][column] + "' by scan, '" +
                       stated.rows[row][column] + "' by statements";
        }
    }
    if (scanned.rows.size() != stated.rows.size())
        return std::to_string(scanned.rows.size()) + " rows by scan, " + std::to_string(stated.rows.size()) +
               " by statements; the last is " +
               joined((scanned.rows.size() > stated.rows.size() ? scanned : stated).rows.back());
    return {};
}

} // namespace

std::vector<TableRows> leftBehind(const RandomRun& run) {
    std::vector<TableRows> tables{rowsOfTable(*gdbSystem, run.table)};
    for (auto& row : tables.front().rows)
        row.front() = foldText(row.front()); // a new row takes any of the spellings of its area
    const bool ofGroups = run.boundary == RunBoundary::CustomerGroups;
    if (ofGroups && valueOf(*gdbProject, "SELECT Count(*) FROM TblGroups WHERE GroupName <> ''") == "0")
        return tables; // such a run does nothing
    tables.push_back(workingTable(ofGroups ? run.table : "SelectedData"));
    if (countsCallers(run)) {
        for (const char* table : {"TblAnsweredCallers", "TblLostCallers"})
            tables.push_back(workingTable(table));
    }
    return tables;
}

std::string firstDifference(const std::vector<TableRows>& scanned, const std::vector<TableRows>& stated) {
    for (std::size_t i = 0; i < scanned.size(); ++i) {
        const std::string difference = differenceOf(scanned[i], stated[i]);
        if (!difference.empty())
            return stated[i].name + ", " + difference;
    }
    return {};
}

std::string firstDifference(const std::vector<std::string>& stored, const std::vector<std::string>& recounted) {
    for (std::size_t row = 0; row < std::max(stored.size(), recounted.size()); ++row) {
        const std::string is = row < stored.size() ? stored[row] : "no row";
        const std::string expected = row < recounted.size() ? recounted[row] : "no row";
        if (is != expected)
            return "stored " + is + "\nrecounted " + expected;
    }
    return {};
}
