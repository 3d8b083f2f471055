#include "report/ProjectPeriod.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/engine/Database.h"

std::optional<ProjectPeriod> projectPeriod() {
    std::optional<ProjectPeriod> period;
    if (!gdbProject)
        return period;
    logAndGoOn([&] {
        const auto rows = gdbProject->openRecordset("SELECT SBSStartDate, SBSEndDate FROM TblCallSummary1");
        if (!rows->EOF_() && !rows->value(0).isNull() && !rows->value(1).isNull())
            period = ProjectPeriod{rows->value(0).asDate(), rows->value(1).asDate()};
    });
    return period;
}
