#pragma once

#include "data/types/Value.h"
#include "tests/stats/BoundaryProject.h"
#include "tests/stats/compare/Random.h"

#include <optional>
#include <string>
#include <vector>

using OptionalText = std::optional<std::string>; ///< nothing is null

/// A row of TblTeleItem.
struct ProjectCall {
    std::optional<double> date; ///< days since 30 December 1899
    int hour = 0, minute = 0;   ///< of `time`
    std::string time;
    OptionalText called, caller, code, answerInd, answerPoint, destination, payphone;
    std::optional<long> discounted; ///< ten-thousandths of a pound
};

/// A row of TblMappingGIS.
struct ProjectPlace {
    OptionalText code, tvArea, csg, exchange, postCode;
};

/// A row of TblGroups.
struct GroupMember {
    std::string reference;
    OptionalText group;
};

/// What a random project holds: everything that null and blank values, letters in two cases, trailing blanks, doubled
/// rows and calls without a place can make difficult.
struct ProjectContent {
    std::vector<ProjectPlace> places;
    std::vector<ProjectCall> calls;
    std::vector<GroupMember> groups;
    std::string groupKind; ///< DataType of tblMappingGroupSetup
    std::vector<std::string> csgShapes, districtShapes;
    bool hasLookup = false; ///< TblLookup1141 knows the names; otherwise the geography's are made to fit
};

/// A first day of all calls; the last is `callDays` - 1 later.
inline constexpr int firstCallDay = 45665; // 8 January 2025
inline constexpr int callDays = 8;

/// The members that community and answer point groups have in every random project; any other group has none.
inline const std::vector<std::string> salesNumbers{"0800", "AB1"}, unallocatedNumbers{"0801"},
    northPoints{"Leeds", "Hull"}, unallocatedPoints{"Bath"};

ProjectContent makeProjectContent(Random& random);
ProjectCall makeCall(Random& random);

/// An installation with such a project, open.
class RandomInstallation : public BoundaryProject {
public:
    explicit RandomInstallation(const ProjectContent& content);
};

void storeCall(const ProjectCall& call);
/// The geography as it stands in the open project: reconciled names are changed there.
std::vector<ProjectPlace> storedPlaces();
