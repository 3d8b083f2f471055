#include "data/schema/VocabularyBuilder.h"

namespace vocabulary {

namespace {

constexpr auto CustomerGroups = DatabaseKind::CustomerGroups;
constexpr auto Delivered = TableOrigin::Delivered;
constexpr auto MadeHere = TableOrigin::MadeHere;

} // namespace

Fields groupFields() {
    // The marks are texts: what is stored in them is "USER" as well as numbers.
    return {text("TallyAccount", 50), text("Reference", 50), text("GroupName", 50),
            text("Found", 10),        text("Checked", 10),   text("Flag", 10)};
}

Fields groupNameFields() {
    return {text("TallyAccount", 50), text("Name", 50)};
}

Fields groupPolygonFields() {
    return join({{text("TALLYACCOUNT", 50), text("GROUPNAME", 50)}, polygonFields()});
}

Fields groupLabelFields() {
    return {text("TALLYACCOUNT", 50), text("NAME", 40), longInteger("POINTID"), real("XCOORD"), real("YCOORD")};
}

Tables customerGroupTables() {
    return {
        table(CustomerGroups, Delivered, "TblGroups", groupFields()),
        table(CustomerGroups, Delivered, "TblName", groupNameFields()),
        table(CustomerGroups, MadeHere, "tblMappingGroupSetup",
              {text("TALLYACCOUNT", 50), text("DataType", 40), boolean("Status")}),
        table(CustomerGroups, Delivered, "tblFieldIndicator", {text("TallyAccount", 50), text("JoinedBy", 10)}),
        table(CustomerGroups, MadeHere, "PGN_GROUPS", groupPolygonFields()),
        table(CustomerGroups, MadeHere, "PNT_GROUPS", groupLabelFields()),
        table(CustomerGroups, Delivered, "TblAnswerPoints",
              {text("TallyAccount", 50), text("Reference", 30), text("GroupName", 30)}),
        table(CustomerGroups, Delivered, "tblCommunityGroups",
              {text("TallyAccount", 50), text("Reference", 20), text("GroupName", 30), text("GroupName2", 30),
               text("GroupName3", 30)}),
        table(CustomerGroups, Delivered, "TblCommunityGroupsName", {text("TallyAccount", 50), text("Name", 30)}),
    };
}

} // namespace vocabulary
