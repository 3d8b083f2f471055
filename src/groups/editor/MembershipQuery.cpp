#include "groups/editor/MembershipQuery.h"

#include "data/types/Value.h"

std::string membershipQuestion(const std::string& Reference, const std::string& GroupName, bool Adding) {
    const std::string area = "Reference " + trimmedText(Reference), group = trimmedText(GroupName);
    if (Adding)
        return area + " is already a member of Group " + group + ".  Do you want to override this group setting?";
    return area + " is a member of Group " + group +
           ".  This is NOT the group you have selected from the Groups list.  Do you want to remove the area from this "
           "group?";
}
