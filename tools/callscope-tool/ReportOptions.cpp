#include "tools/callscope-tool/ReportOptions.h"

#include "core/RuntimeError.h"
#include "map/MapMeasures.h"

#include <CLI/CLI.hpp>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

struct BoundaryName {
    const char* name;
    long code;
};
constexpr std::array<BoundaryName, 5> boundaryNames{
    {{"exchange", 0}, {"csg", 1}, {"tv", 2}, {"postcode", 3}, {"groups", 5}}};

constexpr int leastPicture = 200;
constexpr int mostPicture = 10000;

bool readSize(const std::string& text, int& width, int& height) {
    char rest = 0;
    return std::sscanf(text.c_str(), "%5dx%5d%c", &width, &height, &rest) == 2 && width >= leastPicture &&
           height >= leastPicture && width <= mostPicture && height <= mostPicture;
}

bool isDate(const std::string& text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-')
        return false;
    try {
        parseDate(text);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

bool isTime(const std::string& text) {
    if ((text.size() != 5 && text.size() != 8) || text[2] != ':')
        return false;
    try {
        return parseDate(text).days < 1.0;
    } catch (const RuntimeError&) {
        return false;
    }
}

template<typename Accepts>
CLI::Validator validator(const std::string& form, Accepts accepts) {
    return CLI::Validator(
        [form, accepts](std::string& text) { return accepts(text) ? std::string() : "'" + text + "' is not " + form; },
        form);
}

std::vector<std::string> namesOfBoundaries() {
    std::vector<std::string> names;
    for (const BoundaryName& boundary : boundaryNames)
        names.emplace_back(boundary.name);
    return names;
}

std::vector<std::string> namesOfMeasures() {
    std::vector<std::string> names;
    for (const MapMeasure& measure : mapMeasures())
        names.emplace_back(measure.text);
    return names;
}

void addPeriod(CLI::App& command, ReportOptions& options) {
    const auto date = validator("a date as YYYY-MM-DD", isDate);
    const auto time = validator("a time of day as HH:MM or HH:MM:SS", isTime);
    command.add_option("--start", options.start, "First day")->check(date);
    command.add_option("--end", options.end, "Last day")->check(date);
    command.add_option("--from", options.from, "Hours after")->check(time);
    command.add_option("--to", options.to, "Hours before")->check(time);
    command.add_flag("--overnight", options.overnight, "Hours that cross midnight go on into the next day");
}

void addFilters(CLI::App& command, ReportOptions& options) {
    CLI::Option* inbound = command.add_option("--inbound", options.inbound, "One inbound number");
    command.add_option("--community-group", options.communityGroup, "One community group")->excludes(inbound);
    CLI::Option* point = command.add_option("--answer-point", options.answerPoint, "One answer point");
    command.add_option("--answer-group", options.answerGroup, "One answer point group")->excludes(point);
    command.add_option("--destination", options.destination, "One destination ID");
}

void addOutputs(CLI::App& command, ReportOptions& options) {
    command.add_option("--png", options.png, "Write the map as a picture");
    command.add_flag("--with-panels", options.withPanels, "Show calls without a place on the map in the picture");
    command.add_option("--size", options.size, "Its size in pixels")
        ->check(validator("a size as WIDTHxHEIGHT, each from 200 to 10000",
                          [](const std::string& text) {
                              int width = 0;
                              int height = 0;
                              return readSize(text, width, height);
                          }))
        ->capture_default_str();
    command.add_option("--xlsx", options.xlsx, "Write the figures as a workbook");
    command.add_option("--csv", options.csv, "Write the rows of the table that the map reads");
    command.add_option("--engine", options.engine, "What counts the calls")
        ->check(CLI::IsMember({"statements", "scan"}));
}

} // namespace

std::shared_ptr<ReportOptions> addReportOptions(CLI::App& command) {
    auto options = std::make_shared<ReportOptions>();
    command.add_option("--dir", options->dir, "The installation: the folder with Paths.txt")->required();
    command.add_option("--project", options->project, "The project database")->required();
    command.add_option("--boundary", options->boundary, "What the country is divided into")
        ->required()
        ->check(CLI::IsMember(namesOfBoundaries()));
    command.add_option("--map-type", options->mapType, "What is shown")
        ->required()
        ->check(CLI::IsMember(namesOfMeasures()));
    addPeriod(command, *options);
    addFilters(command, *options);
    addOutputs(command, *options);
    return options;
}

long ReportOptions::boundaryCode() const {
    for (const BoundaryName& name : boundaryNames) {
        if (boundary == name.name)
            return name.code;
    }
    return -1;
}

int ReportOptions::width() const {
    int w = 0;
    int h = 0;
    readSize(size, w, h);
    return w;
}

int ReportOptions::height() const {
    int w = 0;
    int h = 0;
    readSize(size, w, h);
    return h;
}

ReportParameters ReportOptions::parameters(ReportParameters whole) const {
    if (!start.empty())
        whole.DTStart = parseDate(start);
    if (!end.empty())
        whole.DTEnd = parseDate(end);
    if (!from.empty())
        whole.DTStartTime[0] = parseDate(from);
    if (!to.empty())
        whole.DTStartTime[1] = parseDate(to);
    whole.ChkOverNight = overnight;
    whole.OptInbound = !inbound.empty() ? 1 : !communityGroup.empty() ? 2 : 0;
    whole.CmbInbound = inbound;
    whole.cmbCG = communityGroup;
    whole.OptAnswer = !answerPoint.empty() ? 1 : !answerGroup.empty() ? 2 : 0;
    whole.CmbAnswer = answerPoint;
    whole.CmbAnswerGroup = answerGroup;
    whole.optDestinationNo = destination.empty() ? 0 : 1;
    whole.cmbDestinationNo = destination;
    return whole;
}
