#pragma once

#include "report/form/ChoiceList.h"

/// What the open project, and the groups of its account, offer to choose from. Errors are logged under the running
/// stage and leave the list in question empty; main thread.

struct InboundLists {
    ChoiceList numbers;         ///< CmbInbound: the inbound numbers of the project
    ChoiceList communityGroups; ///< cmbCG: "Not Allocated" and the account's community groups
};
/// Tells the user where the project has no inbound numbers, or no account to look for groups under.
InboundLists Setup_Inbound_List();

struct LocationLists {
    ChoiceList answerPoints;      ///< CmbAnswer
    ChoiceList answerPointGroups; ///< CmbAnswerGroup: "Not Allocated" and the account's groups
    ChoiceList destinations;      ///< cmbDestinationNo
};
/// Opens comgroups.mdb into gdbCommunityGroups as well.
LocationLists Setup_Location_List();
