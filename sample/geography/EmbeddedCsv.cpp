#include "sample/geography/EmbeddedCsv.h"

#include <charconv>
#include <stdexcept>

namespace sample {

namespace {

std::vector<std::string> splitFields(std::string_view line) {
    std::vector<std::string> fields(1);
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (c == '"' && quoted && i + 1 < line.size() && line[i + 1] == '"')
            fields.back() += line[++i];
        else if (c == '"')
            quoted = !quoted;
        else if (c == ',' && !quoted)
            fields.emplace_back();
        else
            fields.back() += c;
    }
    return fields;
}

} // namespace

double CsvRecord::number(std::size_t field) const {
    const std::string& text = fields.at(field);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        fail("\"" + text + "\" is not a number");
    return value;
}

void CsvRecord::fail(std::string_view problem) const {
    throw std::runtime_error(std::string(fileName) + " line " + std::to_string(lineNumber) + ": " +
                             std::string(problem));
}

std::vector<CsvRecord> readCsv(const EmbeddedCsv& csv, std::string_view header) {
    std::vector<CsvRecord> records;
    const std::size_t columns = splitFields(header).size();
    bool headerSeen = false;
    for (std::size_t i = 0; i < csv.lines.size(); ++i) {
        const std::string_view line = csv.lines[i];
        if (line.empty() || line.front() == '#')
            continue;
        CsvRecord record{csv.fileName, static_cast<int>(i) + 1, splitFields(line)};
        if (!headerSeen && line != header)
            record.fail("the header is not " + std::string(header));
        if (record.fields.size() != columns)
            record.fail("has " + std::to_string(record.fields.size()) + " fields, not " + std::to_string(columns));
        if (headerSeen)
            records.push_back(std::move(record));
        headerSeen = true;
    }
    return records;
}

} // namespace sample
