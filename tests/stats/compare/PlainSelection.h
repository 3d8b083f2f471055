#pragma once

#include "stats/ReportParameters.h"
#include "tests/stats/compare/RandomProject.h"

#include <string>
#include <vector>

/// The meaning of selections and texts by plain comparisons, without the dialect.

/// Upper case and no trailing blanks; of letters beyond ASCII those that the random projects have.
std::string plainFold(const std::string& text);
/// Both are there and fold to the same.
bool same(const OptionalText& a, const std::string& b);
bool isOneOf(const OptionalText& text, const std::vector<std::string>& list);

/// Whether a report of these parameters counts the call.
bool isSelected(const ProjectCall& call, const ReportParameters& parameters);
