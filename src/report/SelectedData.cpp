#include "report/SelectedData.h"

#include "core/LogAndGoOn.h"
#include "core/ModDeclarations.h"
#include "data/project/Databases.h"
#include "report/CaptureRow.h"
#include "report/RememberedChoices.h"
#include "stats/CurrentProcedure.h"
#include "stats/ProjectCalls.h"

#include <string>
#include <string_view>
#include <vector>

bool RecomputeSelection = false;

namespace {

std::string numbered(std::string_view column, int slot) {
    return std::string(column) + std::to_string(slot);
}

std::vector<RememberedChoice> choicesOf(const ReportParameters& parameters, int slot) {
    return {{numbered("SelectedInboundNo", slot), parameters.OptInbound == 1, parameters.CmbInbound},
            {numbered("SelectedCommunityGroup", slot), parameters.OptInbound == 2, parameters.cmbCG},
            {numbered("SelectedAnswerPt", slot), parameters.OptAnswer == 1, parameters.CmbAnswer},
            {numbered("SelectedAnswerPtGroup", slot), parameters.OptAnswer == 2, parameters.CmbAnswerGroup},
            {numbered("SelectedDestinationNo", slot), parameters.optDestinationNo == 1, parameters.cmbDestinationNo}};
}

/// One range of dates and hours of day.
struct Range {
    Date startDate, startTime, endDate, endTime;
};

bool rangeDiffers(const Recordset& row, const Range& range, int slot) {
    return !sameDay(row.value(numbered("StartDate", slot)), range.startDate) ||
           !sameTime(row.value(numbered("StartTime", slot)), range.startTime) ||
           !sameDay(row.value(numbered("EndDate", slot)), range.endDate) ||
           !sameTime(row.value(numbered("EndTime", slot)), range.endTime);
}

void setRange(Recordset& row, const Range& range, int slot) {
    row.set(numbered("StartDate", slot), range.startDate);
    row.set(numbered("StartTime", slot), range.startTime);
    row.set(numbered("EndDate", slot), range.endDate);
    row.set(numbered("EndTime", slot), range.endTime);
}

Range singleRange(const ReportParameters& parameters) {
    return {parameters.DTStart, parameters.DTStartTime[0], parameters.DTEnd, parameters.DTStartTime[1]};
}

constexpr int singleSlot = 1;
constexpr int firstMultiSlot = 2; ///< also that of the choices that all maps share

/// The pickers of a map; it is counted from 0.
Range rangeOf(const MultiMapParameters& ranges, int map) {
    const Date* picked = &ranges.DTPicker1[static_cast<std::size_t>(map) * 4];
    return {picked[0], picked[1], picked[2], picked[3]};
}

constexpr int maps = 6;

bool changedByCallscope() {
    const auto rows = projectDatabase().openRecordset("SELECT * FROM Tbl50");
    if (rows->EOF_())
        return false;
    for (int position = 0; position < rows->fieldCount(); ++position) {
        if (rows->field(position).name != "UpdateMapping")
            continue;
        const Value& value = rows->value(position);
        return !value.isNull() && value.asDouble() == 1;
    }
    return false;
}

bool selectionDiffers(const Recordset& row, const ReportParameters& parameters) {
    return row.value("BoundaryType1").asText() != gsBoundaryType ||
           rangeDiffers(row, singleRange(parameters), singleSlot) ||
           choicesDiffer(row, choicesOf(parameters, singleSlot)) || row.value("Overnight").isNull() ||
           row.value("Overnight").asBoolean() != parameters.ChkOverNight;
}

bool multiSelectionDiffers(const Recordset& row, const ReportParameters& parameters, const MultiMapParameters& ranges) {
    if (row.value("ProjectMultiMap").asText() != capturedProjectName() ||
        row.value("BoundaryType2").asText() != gsBoundaryType)
        return true;
    for (int map = 0; map < maps; ++map) {
        if (rangeDiffers(row, rangeOf(ranges, map), firstMultiSlot + map))
            return true;
    }
    const Value& counted = row.value("MultiMaps");
    return choicesDiffer(row, choicesOf(parameters, firstMultiSlot)) || counted.isNull() ||
           counted.asInteger() != mapCount(ranges);
}

} // namespace

void CheckSelectedData(const ReportParameters& parameters) {
    const CurrentProcedure procedure("FrmMain_CheckSelectedData");
    bool changed = false;
    logAndGoOn([&] { changed = changedByCallscope(); });
    if (changed) {
        logAndGoOn([] { projectDatabase().execute("UPDATE Tbl50 SET UpdateMapping = 0"); });
        logAndGoOn(forgetProjectCalls);
        RecomputeSelection = true;
        return;
    }
    onCaptureRow([&](Recordset& row) { RecomputeSelection = RecomputeSelection || selectionDiffers(row, parameters); });
}

void SaveSelectedData(const ReportParameters& parameters) {
    const CurrentProcedure procedure("FrmMain_SaveSelectedData");
    onCaptureRow([&](Recordset& row) {
        row.Edit();
        row.set("BoundaryType1", gsBoundaryType);
        setRange(row, singleRange(parameters), singleSlot);
        row.set("Overnight", parameters.ChkOverNight ? 1 : 0);
        setChoices(row, choicesOf(parameters, singleSlot));
        row.Update();
    });
}

void CheckMultiData(const ReportParameters& parameters, const MultiMapParameters& ranges) {
    const CurrentProcedure procedure("FrmMain_CheckMultiData");
    onCaptureRow([&](Recordset& row) {
        RecomputeSelection = RecomputeSelection || multiSelectionDiffers(row, parameters, ranges);
    });
}

void SaveMultiData(const ReportParameters& parameters, const MultiMapParameters& ranges) {
    const CurrentProcedure procedure("FrmMain_CmdReport_Click");
    onCaptureRow([&](Recordset& row) {
        row.Edit();
        row.set("ProjectMultiMap", capturedProjectName());
        row.set("BoundaryType2", gsBoundaryType);
        for (int map = 0; map < maps; ++map)
            setRange(row, rangeOf(ranges, map), firstMultiSlot + map);
        setChoices(row, choicesOf(parameters, firstMultiSlot));
        row.set("MultiMaps", mapCount(ranges));
        row.Update();
    });
}
