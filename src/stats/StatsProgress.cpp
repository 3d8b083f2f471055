#include "stats/StatsProgress.h"

#include "core/Progress.h"

#include <string>

long StatsProgressStep = 0;
long StatsProgressMaximum = 0;

StatisticsDisplay::StatisticsDisplay(bool showsTexts, bool mainTable) : showsTexts_(showsTexts), mainTable_(mainTable) {
    progress().setHourglass(true);
}

StatisticsDisplay::~StatisticsDisplay() {
    progress().setReportBar(false, StatsProgressMaximum, StatsProgressStep);
    progress().setHourglass(false);
}

void StatisticsDisplay::task(std::string_view text) const {
    if (showsTexts_ && !text.empty()) {
        progress().setTask(std::string(text));
        progress().setMessageBar(1, 0);
    }
    progress().yield();
}

void StatisticsDisplay::position(std::size_t count, std::size_t at) const {
    if (!showsTexts_)
        return;
    progress().setMessageBar(static_cast<long>(count), static_cast<long>(at));
    progress().yield();
}

void StatisticsDisplay::stepDone() const {
    if (!mainTable_ && StatsProgressStep < StatsProgressMaximum)
        progress().setReportBar(true, StatsProgressMaximum, ++StatsProgressStep);
    progress().yield();
}
