#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sample {

/// A data file compiled into the program, line by line.
struct EmbeddedCsv {
    std::string_view fileName;
    std::span<const std::string_view> lines;
};

const EmbeddedCsv& coastCsv();
const EmbeddedCsv& nationsCsv();
const EmbeddedCsv& townsCsv();
const EmbeddedCsv& csgsCsv();

/// One record: its fields and where it stands, for messages.
struct CsvRecord {
    std::string_view fileName;
    int lineNumber = 0; ///< from 1
    std::vector<std::string> fields;

    /// The field as a number; throws std::runtime_error that names file and line.
    double number(std::size_t field) const;
    /// Throws std::runtime_error: file, line, `problem`.
    [[noreturn]] void fail(std::string_view problem) const;
};

/// The records below the header line. Lines that begin with '#' and empty lines are left out; a field may stand in
/// double quotes. Throws std::runtime_error when the header is not `header` or a record has another number of fields.
std::vector<CsvRecord> readCsv(const EmbeddedCsv& csv, std::string_view header);

} // namespace sample
