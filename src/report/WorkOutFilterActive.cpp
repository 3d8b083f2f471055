#include "report/WorkOutFilterActive.h"

#include <cmath>

namespace {

bool sameDay(Date a, Date b) {
    return std::floor(a.days) == std::floor(b.days);
}

bool isTime(Date time, int hour, int minute, int second) {
    const DateParts parts = partsOf(time);
    return parts.hour == hour && parts.minute == minute && parts.second == second;
}

} // namespace

bool workOutFilterActive(const ReportParameters& parameters, Date projectStart, Date projectEnd) {
    return !sameDay(parameters.DTStart, projectStart) || !sameDay(parameters.DTEnd, projectEnd) ||
           !isTime(parameters.DTStartTime[0], 0, 0, 0) || !isTime(parameters.DTStartTime[1], 23, 59, 59) ||
           parameters.OptInbound != 0 || parameters.OptAnswer != 0 || parameters.optDestinationNo == 1;
}
