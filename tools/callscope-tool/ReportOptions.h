#pragma once

#include "stats/ReportParameters.h"

#include <memory>
#include <string>

namespace CLI {
class App;
}

/// The options of the report command, as they were typed.
struct ReportOptions {
    std::string dir, project, boundary, mapType;
    std::string start, end, from, to;
    bool overnight = false;
    std::string inbound, communityGroup, answerPoint, answerGroup, destination;
    std::string png, size = "1400x1000", xlsx, csv, engine;
    bool withPanels = false; ///< the picture shows the calls without a place on the map

    long boundaryCode() const; ///< 0 exchange, 1 csg, 2 tv, 3 postcode, 5 groups
    int width() const;         ///< of the picture, in pixels
    int height() const;
    /// `whole` with what the options choose.
    ReportParameters parameters(ReportParameters whole) const;
};

/// Adds the options to a command, with checks of what they may hold.
std::shared_ptr<ReportOptions> addReportOptions(CLI::App& command);
