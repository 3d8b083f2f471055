#include "data/types/Value.h"
#include "map/workbook/Workbook.h"

#include <algorithm>

namespace {

/// What is named on the sheet are values; "Overnight" is a mark without one.
void eraseOvernight(std::string& text) {
    constexpr std::string_view mark = "Overnight";
    for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at))
        text.erase(at, mark.size());
}

ParameterLine lineOf(std::string_view text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos)
        return {std::string(text), ""};
    return {std::string(text.substr(0, equals + 1)), trimmedText(text.substr(equals + 1))};
}

} // namespace

std::vector<ParameterLine> parameterLines(const WorkbookParameters& parameters) {
    std::vector<ParameterLine> lines{{"Start Date=", parameters.startDate},
                                     {"Start Time=", parameters.startTime},
                                     {"End Date=", parameters.endDate},
                                     {"End Time=", parameters.endTime}};
    const std::vector<ParameterLine> selected = descriptionLines(parameters.selectionDescription);
    lines.insert(lines.end(), selected.begin(), selected.end());
    return lines;
}

std::vector<ParameterLine> descriptionLines(std::string description) {
    std::vector<ParameterLine> lines;
    eraseOvernight(description);
    std::string_view rest = description;
    while (!rest.empty()) {
        rest.remove_prefix(std::min(rest.find_first_not_of("\r\n"), rest.size()));
        const std::string_view line = rest.substr(0, rest.find("\r\n"));
        rest.remove_prefix(line.size());
        if (!trimmedText(line).empty())
            lines.push_back(lineOf(line));
    }
    return lines;
}
