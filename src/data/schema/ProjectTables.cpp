#include "data/schema/VocabularyBuilder.h"

namespace vocabulary {

namespace {

constexpr auto Project = DatabaseKind::Project;
constexpr auto Delivered = TableOrigin::Delivered;
constexpr auto MadeHere = TableOrigin::MadeHere;
constexpr auto Working = TableOrigin::Working;

/// One row for each call. Projects of the layout before this one are told by a column "Predisc" in the twelfth place.
Fields teleItemFields() {
    return {date("CallDate"),
            text("CallTime", 8),
            text("CalledNo", 20),
            text("CallingNo", 20),
            text("1141", 10),
            text("AnswerInd", 2),
            text("AnswerLoc", 30),
            text("NetAddress", 20),
            integer("Legs"),
            longInteger("AnswerTime"),
            longInteger("ActualDuration"),
            longInteger("Duration1"),
            money("Discounted"),
            single("TotalAnswerTime"),
            text("PayPhone", 1)};
}

/// The dates and times of one slot: 1 the single map, 2 to 7 the ranges of multiple maps.
void addSlot(Fields& fields, int slot, Field (*textField)(std::string_view, int)) {
    const std::string n = std::to_string(slot);
    fields.push_back(withDefault(date("StartDate" + n), "0"));
    fields.push_back(withDefault(date("EndDate" + n), "0"));
    fields.push_back(textField("StartTime" + n, 10));
    fields.push_back(textField("EndTime" + n, 10));
}

/// The filter of a run; `prefix` and `suffix` stand round the names, as in SelectedInboundNo1, AnimateInboundNo.
void addFilter(Fields& fields, const std::string& prefix, const std::string& suffix,
               Field (*textField)(std::string_view, int)) {
    fields.push_back(textField(prefix + "InboundNo" + suffix, 20));
    for (const char* name : {"CommunityGroup", "AnswerPt", "AnswerPtGroup"})
        fields.push_back(textField(prefix + name + suffix, 30));
}

/// What a statistics run leaves in the project: here with TV regions as its areas.
Tables workingTables() {
    const Fields selected{text("CalledNo", 20), text("AnswerInd", 2), money("Discounted")};
    const Fields callersByArea{text("CallingNo", 20), text("TVArea", 50)};
    const Fields groupSelection = join({{text("GroupName", 50)}, selected});
    return {
        table(Project, Working, "SelectedData", join({selected, {text("TVArea", 50)}})),
        table(Project, Working, "TblAnsweredCallers", callersByArea),
        table(Project, Working, "TblLostCallers", callersByArea),
        table(Project, Working, "TblTempGIS", geographyFields()),
        // The calls of a group run stand in the project under the name of the statistics table that they are for.
        table(Project, Working, "TblCustomerGroups", groupSelection),
        table(Project, Working, "TblSelectedDataForCustomerGroups", groupSelection),
    };
}

} // namespace

Fields dataCaptureFields(Field (*textField)(std::string_view, int)) {
    Fields fields{textField("ProjectName", 250), date("Captured"), textField("BoundaryType", 20),
                  withDefault(date("DefaultStartDate"), "0"), withDefault(date("DefaultEndDate"), "0")};
    for (int slot = 1; slot <= 7; ++slot)
        addSlot(fields, slot, textField);
    addFilter(fields, "Selected", "1", textField);
    addFilter(fields, "Selected", "2", textField);
    fields.push_back(withDefault(date("AnimateStartDate"), "0"));
    fields.push_back(withDefault(single("AnimatePeriod"), "0"));
    fields.push_back(textField("AnimateStartTime", 10));
    addFilter(fields, "Animate", "", textField);
    // The two widths differ in every project there is; a project made here is no exception.
    fields.push_back(textField("SelectedDestinationNo1", 20));
    fields.push_back(textField("SelectedDestinationNo2", 30));
    return fields;
}

Tables projectTables() {
    Tables tables{
        table(Project, Delivered, "TblTeleItem", teleItemFields()),
        table(Project, Delivered, "TblGIS", geographyFields()),
        table(Project, MadeHere, "TblMappingGIS", geographyFields()),
        table(Project, Delivered, "Tbl50", {text("TallyAccount", 50), integer("Flags"), integer("UpdateMapping")}),
        table(Project, Delivered, "TblCallSummary1", {date("SBSStartDate"), date("SBSEndDate")}),
        table(Project, Delivered, "TblKeyNumbers", {text("Number1", 20)}),
        table(Project, Delivered, "TblKeyCountries", {text("Number1", 30)}),
        table(Project, MadeHere, "TblProjectInfo", {text("MappingVersion", 20)}),
        table(Project, MadeHere, "TblSettings", {date("BoundaryDate")}),
        table(Project, MadeHere, "TblDataCapture", dataCaptureFields(filledText)),
        table(Project, Delivered, "TblGroups", groupFields()),
        table(Project, Delivered, "TblName", groupNameFields()),
    };
    for (VocabularyTable& working : workingTables())
        tables.push_back(std::move(working));
    return tables;
}

} // namespace vocabulary
