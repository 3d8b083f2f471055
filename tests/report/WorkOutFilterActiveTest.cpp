#include "report/WorkOutFilterActive.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

struct FilterCase {
    const char* name;
    std::function<void(ReportParameters&)> change;
    bool active;
};

TEST(WorkOutFilterActive, AnyDifferenceFromTheWholeProjectFilters) {
    const Date first = dateOf({.year = 2025, .month = 3, .day = 1});
    const Date last = dateOf({.year = 2025, .month = 3, .day = 31});
    const FilterCase cases[] = {
        {"the whole project", [](auto&) {}, false},
        {"a later first day", [](auto& p) { p.DTStart.days += 1; }, true},
        {"an earlier first day", [](auto& p) { p.DTStart.days -= 1; }, true},
        {"an earlier last day", [](auto& p) { p.DTEnd.days -= 1; }, true},
        {"not from midnight", [](auto& p) { p.DTStartTime[0] = Date{1.0 / 86400.0}; }, true},
        {"not to the last second", [](auto& p) { p.DTStartTime[1] = Date{86398.0 / 86400.0}; }, true},
        {"an inbound number", [](auto& p) { p.OptInbound = 1; }, true},
        {"a community group", [](auto& p) { p.OptInbound = 2; }, true},
        {"an answer point group", [](auto& p) { p.OptAnswer = 2; }, true},
        {"a destination", [](auto& p) { p.optDestinationNo = 1; }, true},
        {"texts whose options are not set", [](auto& p) { p.CmbInbound = p.CmbAnswer = p.cmbDestinationNo = "x"; },
         false},
        {"the overnight tick alone", [](auto& p) { p.ChkOverNight = true; }, false},
    };
    for (const FilterCase& filter : cases) {
        ReportParameters parameters;
        parameters.DTStart = first;
        parameters.DTEnd = last;
        filter.change(parameters);
        EXPECT_EQ(workOutFilterActive(parameters, first, last), filter.active) << filter.name;
    }
}

} // namespace
