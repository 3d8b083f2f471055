#include "core/PromptOptions.h"

const PromptOptions& promptOptions(OptionsMode mode) {
    static const PromptOptions groupTypeOrCancel{
        "Group Type",
        "No groups have been set up for this account.  Do you wish to base groups on Postcode Districts, or on TV "
        "Regions?",
        {"Postcode Districts", "TV Regions", "CSGs", "Cancel"},
        3};
    static const PromptOptions groupType{
        "Group Type",
        "Please select if the groups for this account are based on Postcode Districts, or on TV Regions",
        {"Postcode Districts", "TV Regions"},
        -1};
    static const PromptOptions boundaryType{
        "Boundary Type",
        "Please select whether the CSV file defines the population densities for Postcode Districts, or TV Regions.",
        {"Postcode Districts", "TV Regions", "&Cancel"},
        2};
    switch (mode) {
    case OptionsMode::GroupType:
        return groupType;
    case OptionsMode::BoundaryType:
        return boundaryType;
    case OptionsMode::GroupTypeOrCancel:
        break;
    }
    return groupTypeOrCancel;
}
