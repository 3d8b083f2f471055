#include "animation/CapturedAnimation.h"

#include "animation/FrameSchedule.h"
#include "core/CurrentProcedure.h"
#include "report/CaptureRow.h"
#include "report/RememberedChoices.h"

#include <cmath>

namespace {

std::vector<RememberedChoice> choicesOf(const ReportParameters& parameters) {
    return {{"AnimateInboundNo", parameters.OptInbound == 1, parameters.CmbInbound},
            {"AnimateCommunityGroup", parameters.OptInbound == 2, parameters.cmbCG},
            {"AnimateAnswerPt", parameters.OptAnswer == 1, parameters.CmbAnswer},
            {"AnimateAnswerPtGroup", parameters.OptAnswer == 2, parameters.CmbAnswerGroup}};
}

bool isNumber(const Value& stored, long number) {
    return !stored.isNull() && stored.asDouble() == static_cast<double>(number);
}

/// The column of the length is a number: minutes.
bool differs(const Recordset& row, const AnimationSettings& settings, const ReportParameters& parameters) {
    return row.value("ProjectAnimate").isNull() || row.value("ProjectAnimate").asText() != capturedProjectName() ||
           row.value("BoundaryTypeAnimate").asText() != gsBoundaryType ||
           !isNumber(row.value("Animations"), framesOf(settings)) ||
           !sameDay(row.value("AnimateStartDate"), settings.startDate) ||
           !sameTime(row.value("AnimateStartTime"), settings.startTime) ||
           !isNumber(row.value("AnimatePeriod"), frameMinutes(settings).value_or(0)) ||
           choicesDiffer(row, choicesOf(parameters));
}

/// The entry of the list of that length.
std::string offeredPeriod(const Value& minutes) {
    if (minutes.isNull())
        return {};
    for (const std::string_view period : dataPeriods()) {
        if (isNumber(minutes, minutesOf(period).value_or(0)))
            return std::string(period);
    }
    return {};
}

} // namespace

bool CheckAnimationData(const AnimationSettings& settings, const ReportParameters& parameters) {
    const CurrentProcedure procedure("FrmAnimate_CheckAnimationData");
    bool recompute = true;
    onCaptureRow([&](Recordset& row) { recompute = differs(row, settings, parameters); });
    return recompute;
}

void SaveAnimationData(const AnimationSettings& settings, const ReportParameters& parameters) {
    const CurrentProcedure procedure("FrmAnimate_CmdApply_Click");
    onCaptureRow([&](Recordset& row) {
        row.Edit();
        row.set("ProjectAnimate", capturedProjectName());
        row.set("BoundaryTypeAnimate", gsBoundaryType);
        row.set("AnimateStartDate", settings.startDate);
        row.set("AnimateStartTime", settings.startTime);
        row.set("AnimatePeriod", static_cast<double>(frameMinutes(settings).value_or(0)));
        setChoices(row, choicesOf(parameters));
        row.set("Animations", framesOf(settings));
        row.Update();
    });
}

void forgetAnimationData() {
    onCaptureRow([](Recordset& row) {
        row.Edit();
        row.set("ProjectAnimate", Value());
        row.Update();
    });
}

std::optional<CapturedAnimation> capturedAnimation() {
    const CurrentProcedure procedure("FrmAnimate_Form_Load");
    std::optional<CapturedAnimation> captured;
    onCaptureRow([&](Recordset& row) {
        if (row.value("ProjectAnimate").isNull() || row.value("ProjectAnimate").asText() != capturedProjectName())
            return;
        CapturedAnimation stored;
        stored.startDate = Date{std::floor(row.value("AnimateStartDate").asDate().days)};
        stored.startTime = row.value("AnimateStartTime").asDate();
        stored.CmbFrames = row.value("Animations").asText();
        stored.CmbDataPeriod = offeredPeriod(row.value("AnimatePeriod"));
        captured = stored;
    });
    return captured;
}
