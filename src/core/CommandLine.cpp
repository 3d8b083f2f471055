#include "core/CommandLine.h"

namespace {

constexpr std::string_view separator = "\",\"";

} // namespace

CommandLineFields splitCommandLine(std::string_view commandLine) {
    CommandLineFields fields;
    std::size_t begin = 0;
    for (std::string& field : fields) {
        const std::size_t end = commandLine.find(separator, begin);
        field = commandLine.substr(begin, end == std::string_view::npos ? end : end - begin);
        if (end == std::string_view::npos)
            break;
        begin = end + separator.size();
    }
    if (fields.front().starts_with('"'))
        fields.front().erase(0, 1);
    if (fields.back().ends_with('"'))
        fields.back().pop_back();
    return fields;
}

std::string rebuildCommandLine(const std::vector<std::string>& arguments) {
    std::string line;
    for (const std::string& argument : arguments) {
        if (!line.empty())
            line += ' ';
        line += argument;
    }
    if (line.empty() || line.find(separator) != std::string::npos)
        return line;
    return "\"\",\"\",\"" + line + '"';
}
